// The choosers of colours, linetypes, line weights and files.
#include "host/afx/Numbers.h"
#include "host/afx/Paths.h"
#include "host/db/AcDb.h"
#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbLinetypeTable.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/qt/QtText.h"
#include "host/qt/dialogs/ColourGrid.h"
#include "host/qt/dialogs/DesktopDialogs.h"
#include "host/qt/dialogs/MessageBoxes.h"

#include <QBoxLayout>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QPushButton>

namespace desktop {
namespace {

// A dialog around one widget, with buttons to accept and to give up.
bool Accepted(QWidget* parent, const QString& title, QWidget* inside,
              const std::function<void(QDialog&)>& connect) {
  QDialog dialog(parent);
  dialog.setWindowTitle(title);
  dialog.setObjectName(title);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  buttons->button(QDialogButtonBox::Ok)->setText(QStringLiteral("确定"));
  buttons->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("取消"));
  auto* layout = new QBoxLayout(QBoxLayout::TopToBottom, &dialog);
  layout->addWidget(inside, 1);
  layout->addWidget(buttons);
  QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  connect(dialog);
  return dialog.exec() == QDialog::Accepted;
}

// The index of the entry that the user takes.
std::optional<int> ChooseFrom(QWidget* parent, const QString& title, const QStringList& entries, int start) {
  auto* list = new QListWidget;
  list->addItems(entries);
  list->setCurrentRow(start);
  list->setMinimumSize(280, 300);
  const auto connect = [list](QDialog& dialog) {
    QObject::connect(list, &QListWidget::itemDoubleClicked, &dialog, &QDialog::accept);
  };
  int chosen = start;
  QObject::connect(list, &QListWidget::currentRowChanged, [&chosen](int row) { chosen = row; });
  if (!Accepted(parent, title, list, connect) || chosen < 0) return std::nullopt;
  return chosen;
}

// Tells in the program's own words that a file to open is not there.
class FileDialog : public QFileDialog {
 public:
  using QFileDialog::QFileDialog;

 protected:
  void accept() override {
    for (const QString& file : selectedFiles())
      if (fileMode() == ExistingFile && !QFileInfo::exists(file)) {
        const CString text = L"找不到文件“" + FromQt(file) + L"”。";
        ShowDialogBox(this, MakeMessageBox(text, FromQt(windowTitle()), MB_OK | MB_ICONEXCLAMATION));
        return;
      }
    QFileDialog::accept();
  }
};

} // namespace

std::optional<int> DesktopDialogs::ChooseColour(int start, bool allowByLayerAndBlock) {
  int chosen = start;
  auto* whole = new QWidget;
  auto* layout = new QBoxLayout(QBoxLayout::TopToBottom, whole);
  layout->setContentsMargins(0, 0, 0, 0);
  auto* grid = new ColourGrid(start);
  auto* name = new QLabel;
  const auto show = [&chosen, name] { name->setText(QStringLiteral("颜色：") + ColourName(chosen)); };
  show();
  layout->addWidget(grid);
  auto* row = new QBoxLayout(QBoxLayout::LeftToRight);
  row->addWidget(name, 1);
  if (allowByLayerAndBlock)
    for (const int special : {kColourByLayer, kColourByBlock}) {
      auto* button = new QPushButton(ColourName(special));
      button->setAutoDefault(false);
      QObject::connect(button, &QPushButton::clicked, [&chosen, special, show, grid] {
        chosen = special;
        grid->setChosen(special);
        show();
      });
      row->addWidget(button);
    }
  layout->addLayout(row);
  const auto connect = [&](QDialog& dialog) {
    grid->picked = [&chosen, show](int index) {
      chosen = index;
      show();
    };
    grid->taken = [&dialog] { dialog.accept(); };
  };
  if (!Accepted(parent(), QStringLiteral("选择颜色"), whole, connect)) return std::nullopt;
  if (!allowByLayerAndBlock && (chosen < 1 || chosen > 255)) return std::nullopt;
  return chosen;
}

std::optional<CString> DesktopDialogs::ChooseLinetype(const CString& start) {
  AcDbDatabase* drawing = acdbHostApplicationServices()->workingDatabase();
  if (!drawing) return std::nullopt;
  std::vector<CString> names;
  QStringList shown;
  int at = -1;
  AcDbObjectPointer<AcDbLinetypeTable> table(drawing->linetypeTableId(), AcDb::kForRead);
  if (!table) return std::nullopt;
  for (const auto& id : table->records()) {
    const auto* record = AcDbLinetypeTableRecord::cast(id.object());
    if (!record || record->isErased()) continue;
    if (start.CompareNoCase(record->name()) == 0) at = static_cast<int>(names.size());
    names.push_back(record->name());
    shown.append(Shown(record->name()));
  }
  table.close();
  const auto chosen = ChooseFrom(parent(), QStringLiteral("选择线型"), shown, at);
  return chosen ? std::optional<CString>(names[static_cast<std::size_t>(*chosen)]) : std::nullopt;
}

std::optional<int> DesktopDialogs::ChooseLineWeight(int start) {
  std::vector<int> weights{kWeightByLayer, kWeightByBlock, kWeightDefault};
  QStringList shown{QStringLiteral("ByLayer（随层）"), QStringLiteral("ByBlock（随块）"),
                    QStringLiteral("默认")};
  constexpr int widest = 211;
  for (int weight = 0; weight <= widest; ++weight) {
    if (!AcDb::isValidLineWeight(weight)) continue;
    weights.push_back(weight);
    shown.append(Shown(CString(afx::FixedDouble(weight / 100.0, 2, false))) + QStringLiteral(" mm"));
  }
  const auto at = std::find(weights.begin(), weights.end(), start);
  const int row = at == weights.end() ? -1 : static_cast<int>(at - weights.begin());
  const auto chosen = ChooseFrom(parent(), QStringLiteral("选择线宽"), shown, row);
  return chosen ? std::optional<int>(weights[static_cast<std::size_t>(*chosen)]) : std::nullopt;
}

std::optional<CString> DesktopDialogs::ChooseFile(const UiFileQuestion& question) {
  QStringList patterns;
  for (const CString& pattern : question.patterns) patterns.append(ToQt(pattern));
  FileDialog dialog(parent(), Shown(question.title));
  dialog.setObjectName(QStringLiteral("fileDialog"));
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setAcceptMode(question.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(question.save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  // Whoever asks for a file to write asks about replacing it, too.
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  QStringList filters;
  if (!patterns.isEmpty())
    filters.append(patterns.join(QLatin1Char(' ')) + QStringLiteral(" (") + patterns.join(QLatin1Char(' ')) +
                   QLatin1Char(')'));
  filters.append(QStringLiteral("所有文件 (*)"));
  dialog.setNameFilters(filters);
  dialog.setLabelText(QFileDialog::LookIn, QStringLiteral("文件夹："));
  dialog.setLabelText(QFileDialog::FileName, QStringLiteral("文件名："));
  dialog.setLabelText(QFileDialog::FileType, QStringLiteral("类型："));
  dialog.setLabelText(QFileDialog::Accept, question.save ? QStringLiteral("保存") : QStringLiteral("打开"));
  dialog.setLabelText(QFileDialog::Reject, QStringLiteral("取消"));
  if (!question.folder.IsEmpty())
    dialog.setDirectory(QString::fromStdString(afx::NativePath(question.folder)));
  if (!question.name.IsEmpty()) dialog.selectFile(ToQt(question.name));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  return FromQt(dialog.selectedFiles().first());
}

} // namespace desktop
