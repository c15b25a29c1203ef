#include "host/qt/window/Autosave.h"

#include "host/afx/AtomicFile.h"
#include "host/afx/MessageLog.h"
#include "host/db/ExternalReferences.h"
#include "host/dxf/DrawingFile.h"
#include "host/ed/AcApDocManager.h"
#include "host/ed/EdSession.h"
#include "host/qt/QtText.h"

#include <QDateTime>
#include <QDir>
#include <QFile>

#include <unistd.h>

namespace desktop {
namespace {

const QString kLock = QStringLiteral("lock");
const QString kOffered = QStringLiteral("offered");
constexpr std::uint64_t kMostNote = 1 << 20;

// Title and original file, a line each.
CString NoteOf(const AcApDocument& document) {
  return document.docTitle() + L"\n" + document.fileName() + L"\n";
}

} // namespace

Autosave::Autosave(const QString& folder) : m_folder(folder) {
  m_own = QStringLiteral("%1/%2-%3").arg(folder).arg(QDateTime::currentMSecsSinceEpoch()).arg(getpid());
  QDir().mkpath(m_own);
  m_lock = std::make_unique<QLockFile>(m_own + QLatin1Char('/') + kLock);
  m_lock->setStaleLockTime(0);
  m_lock->tryLock(0);
}

Autosave::~Autosave() {
  m_lock->unlock();
  QDir(m_own).removeRecursively();
}

bool Autosave::save() {
  if (EdSession::instance().commandDepth() > 0) return false;
  std::map<const AcApDocument*, int> kept;
  const std::unique_ptr<AcApDocumentIterator> documents(acDocManager->newAcApDocumentIterator());
  for (; !documents->done(); documents->step()) {
    const auto* document = documents->document();
    if (!document->database()->isModified() || !document->isQuiescent()) continue;
    const auto known = m_numbers.find(document);
    const int number = known == m_numbers.end() ? m_next++ : known->second;
    const QString base = QStringLiteral("%1/%2").arg(m_own).arg(number);
    const auto note =
        afx::WriteFileAtomically(FromQt(base + QStringLiteral(".txt")), NoteOf(*document).ToUtf8());
    const auto report =
        dxf::WriteDrawing(*document->database(), FromQt(base + QStringLiteral(".dxf")), {{}, {}, true});
    if (!note.ok || !report.ok) afx::LogError(L"自动保存：" + (note.ok ? report.error : note.message));
    kept[document] = number;
  }
  for (const auto& [document, number] : m_numbers)
    if (!kept.contains(document))
      for (const char* ending : {"dxf", "txt"})
        QFile::remove(QStringLiteral("%1/%2.%3").arg(m_own).arg(number).arg(QLatin1String(ending)));
  m_numbers = std::move(kept);
  return true;
}

std::vector<LeftDrawing> Autosave::takeLeft() {
  std::vector<LeftDrawing> left;
  for (const QString& name : QDir(m_folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
    const QString run = m_folder + QLatin1Char('/') + name;
    if (run == m_own || QFile::exists(run + QLatin1Char('/') + kOffered)) continue;
    QLockFile lock(run + QLatin1Char('/') + kLock);
    lock.setStaleLockTime(0);
    if (!lock.tryLock(0)) continue; // that run still lives
    for (const QString& file : QDir(run).entryList({QStringLiteral("*.dxf")}, QDir::Files, QDir::Name)) {
      LeftDrawing drawing{run + QLatin1Char('/') + file, FromQt(file), {}};
      std::string note;
      const QString noteFile = drawing.file.chopped(3) + QStringLiteral("txt");
      if (afx::ReadWholeFile(FromQt(noteFile), note, kMostNote).ok) {
        const CString text = CString::FromUtf8(note);
        const int end = text.Find(L'\n');
        if (end > 0) drawing.title = text.Left(end);
        if (end >= 0) drawing.original = text.Mid(end + 1).Trim(L"\n");
      }
      left.push_back(std::move(drawing));
    }
    if (QFile mark(run + QLatin1Char('/') + kOffered); mark.open(QIODevice::WriteOnly)) mark.close();
  }
  return left;
}

void Autosave::discard(const std::vector<LeftDrawing>& drawings) const {
  for (const LeftDrawing& drawing : drawings) {
    QFile::remove(drawing.file);
    QFile::remove(drawing.file.chopped(3) + QStringLiteral("txt"));
  }
}

bool Autosave::open(const LeftDrawing& drawing) {
  dxf::ReadReport report;
  auto* document = acDocManager->openDocument(FromQt(drawing.file), report);
  if (!document) {
    EdSession::instance().print(L"\n" + report.error + L"\n");
    return false;
  }
  const bool hasFile = !drawing.original.IsEmpty() && !acDocManager->documentOfFile(drawing.original);
  document->setFileName(hasFile ? drawing.original : CString());
  acdbResolveCurrentXRefs(document->database()); // they lie beside the drawing, not beside its copy
  document->setRescueBeforeSave(hasFile);
  document->database()->setModified(true);
  acDocManager->titleChanged(*document);
  return true;
}

} // namespace desktop
