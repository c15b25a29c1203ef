#include "host/commands/TextStyleDlg.h"

#include "host/commands/TextStyles.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/db/AcDbTextStyleTable.h"
#include "host/ed/EdLineParser.h"

namespace commands {
namespace {
constexpr const wchar_t* kCaption = L"文字样式";
} // namespace

TextStyleDlg::TextStyleDlg(CWnd* parent) : CDialog(kCaption, parent) {
  m_styles.SelectionChanged.Connect([this] { ShowStyle(); });
  m_add.Clicked.Connect([this] { AddStyle(); });
  m_apply.Clicked.Connect([this] { ApplyStyle(); });
  m_makeCurrent.Clicked.Connect([this] {
    if (MakeTextStyleCurrent(m_styles.SelectedText())) FillStyles(m_styles.SelectedText());
  });
  m_close.Clicked.Connect([this] { OnCancel(); });
}

UiLayout TextStyleDlg::Layout() {
  return ui::Column({
      ui::Item(m_current),
      ui::Row({
          ui::Item(m_styles).Stretch(1),
          ui::Column({ui::Item(m_font), ui::Item(m_bigFont), ui::Item(m_height), ui::Item(m_width),
                      ui::Row({ui::Item(m_apply), ui::Item(m_makeCurrent)})})
              .Stretch(1),
      }),
      ui::Row({ui::Item(m_name), ui::Item(m_add), ui::Space(), ui::Item(m_close)}),
  });
}

void TextStyleDlg::OnInitDialog() {
  FillStyles(CurrentTextStyle());
}

AcDbObjectId TextStyleDlg::SelectedStyle() const {
  return TextStyleByName(m_styles.SelectedText());
}

void TextStyleDlg::FillStyles(const CString& selected) {
  const UiQuietly quietly(m_styles);
  m_styles.ResetContent();
  for (const CString& name : TextStyleNames()) m_styles.AddString(name);
  m_styles.SetCurSel(m_styles.FindStringExact(selected));
  m_current.SetCaption(L"当前文字样式：" + CurrentTextStyle());
  ShowStyle();
}

void TextStyleDlg::ShowStyle() {
  const AcDbObjectPointer<AcDbTextStyleTableRecord> style(SelectedStyle(), AcDb::kForRead);
  for (CWnd* control :
       {static_cast<CWnd*>(&m_font), static_cast<CWnd*>(&m_bigFont), static_cast<CWnd*>(&m_height),
        static_cast<CWnd*>(&m_width), static_cast<CWnd*>(&m_apply), static_cast<CWnd*>(&m_makeCurrent)})
    control->EnableWindow(static_cast<bool>(style));
  if (!style) return;
  m_font.SetText(style->fileName());
  m_bigFont.SetText(style->bigFontFileName());
  m_height.SetValue(style->textSize(), 4, true);
  m_width.SetValue(style->xScale(), 4, true);
}

void TextStyleDlg::AddStyle() {
  const CString name = CString(m_name.GetText()).Trim();
  const auto status = AddTextStyle(name, SelectedStyle());
  if (status != Acad::eOk) {
    const CString why =
        status == Acad::eDuplicateRecordName ? L"文字样式“%s”已经存在。" : L"“%s”不能作为样式名。";
    CString text;
    text.Format(why, ed::Excerpt(name));
    MessageBox(text, kCaption, MB_OK | MB_ICONINFORMATION);
    m_name.SetFocus();
    return;
  }
  m_name.SetText(CString());
  FillStyles(name);
}

bool TextStyleDlg::ApplyStyle() {
  const AcDbObjectPointer<AcDbTextStyleTableRecord> style(SelectedStyle(), AcDb::kForWrite);
  if (!style) return false;
  const bool heightTaken = style->setTextSize(m_height.GetValue()) == Acad::eOk;
  const bool widthTaken = style->setXScale(m_width.GetValue()) == Acad::eOk;
  style->setFileName(m_font.GetText());
  style->setBigFontFileName(m_bigFont.GetText());
  if (!heightTaken) MessageBox(L"高度必须是不小于 0 的数。", kCaption, MB_OK | MB_ICONINFORMATION);
  if (!widthTaken) MessageBox(L"宽度比例必须是大于 0 的数。", kCaption, MB_OK | MB_ICONINFORMATION);
  return heightTaken && widthTaken;
}

} // namespace commands
