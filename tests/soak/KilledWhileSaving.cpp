// Kills a process that saves a drawing over and over, at random moments, and looks at the file each time: it
// must be the drawing before or the one after, whole. Usage: soak_dxf_save [KILLS [SEED]], 200 kills by
// default. Prints how many of them fell into a save; the exit status is 1 when a file was neither.
#include "host/afx/AtomicFile.h"
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbLine.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/dxf/DrawingFile.h"

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>
#include <thread>

#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

constexpr int kLines = 20000;       // about 4 MB, some milliseconds of writing
constexpr int kLongestWait = 60000; // microseconds

void draw(AcDbDatabase& database, int lines) {
  AcDbObjectPointer<AcDbBlockTableRecord> model(database.modelSpaceId(), AcDb::kForWrite);
  for (int i = 0; i < lines; ++i) {
    auto* line = new AcDbLine(AcGePoint3d(i, 0.5, 0), AcGePoint3d(i, 1000.25, 0));
    model->appendAcDbEntity(line);
    line->close();
  }
}

// Saves one and the other in turn until it is killed.
[[noreturn]] void saveForEver(AcDbDatabase& one, AcDbDatabase& other, const CString& path) {
  for (;;) {
    dxf::WriteDrawing(other, path);
    dxf::WriteDrawing(one, path);
  }
}

// Gives how many half-written files the killed process left beside the drawing, and removes them.
int removeLeftovers(const fs::path& folder, const fs::path& drawing) {
  int count = 0;
  for (const auto& entry : fs::directory_iterator(folder)) {
    if (entry.path() == drawing) continue;
    fs::remove(entry.path());
    ++count;
  }
  return count;
}

} // namespace

int main(int count, char** arguments) {
  const int kills = count > 1 ? std::atoi(arguments[1]) : 200;
  const unsigned seed = count > 2 ? static_cast<unsigned>(std::atoi(arguments[2])) : std::random_device()();
  std::string pattern = (fs::temp_directory_path() / "zp-soak-XXXXXX").string();
  if (!::mkdtemp(pattern.data())) return 2;
  const fs::path folder = pattern;
  const fs::path drawing = folder / "plan.dxf";
  const CString path = CString::FromUtf8(drawing.string());

  AcDbDatabase one;
  AcDbDatabase other;
  draw(one, kLines);
  draw(other, kLines + 1);
  const std::string oneBytes = dxf::WriteDrawingBytes(one);
  const std::string otherBytes = dxf::WriteDrawingBytes(other);
  dxf::WriteDrawing(one, path);

  std::mt19937 chance(seed);
  std::uniform_int_distribution<int> wait(0, kLongestWait);
  int withinSave = 0;
  int damaged = 0;
  for (int i = 0; i < kills; ++i) {
    const pid_t child = ::fork();
    if (child < 0) return 2;
    if (child == 0) saveForEver(one, other, path);
    std::this_thread::sleep_for(std::chrono::microseconds(wait(chance)));
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    std::string bytes;
    afx::ReadWholeFile(path, bytes);
    if (bytes != oneBytes && bytes != otherBytes) {
      ++damaged;
      std::fprintf(stderr, "kill %d: the file of %zu bytes is neither drawing (seed %u)\n", i, bytes.size(),
                   seed);
    }
    withinSave += removeLeftovers(folder, drawing) > 0;
  }
  fs::remove_all(folder);
  std::printf("%d kills, %d of them within a save, %d damaged files, seed %u\n", kills, withinSave, damaged,
              seed);
  // A run that never met a save has shown nothing.
  return damaged == 0 && withinSave > 0 ? 0 : 1;
}
