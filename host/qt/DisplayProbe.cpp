#include "host/qt/DisplayProbe.h"

#include <QGuiApplication>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace desktop {

bool HasDisplay() {
  const pid_t child = fork();
  if (child < 0) return false;
  if (child == 0) {
    const rlimit none{0, 0};
    setrlimit(RLIMIT_CORE, &none);
    if (const int silence = open("/dev/null", O_WRONLY); silence >= 0) {
      dup2(silence, STDOUT_FILENO);
      dup2(silence, STDERR_FILENO);
    }
    int argc = 1;
    char name[] = "zpcad";
    char* argv[] = {name, nullptr};
    const QGuiApplication application(argc, argv);
    _exit(QGuiApplication::primaryScreen() ? 0 : 1);
  }
  int status = 0;
  while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

} // namespace desktop
