// Runs a call while no file can be made longer than a few bytes, as on a disk that is full: what is there can
// be read, and every save fails half-way.
#pragma once

#include <csignal>

#include <sys/resource.h>

template <typename Call> auto OnAFullDisk(Call call) {
  const auto handler = std::signal(SIGXFSZ, SIG_IGN); // the write gives an error instead
  rlimit before{};
  ::getrlimit(RLIMIT_FSIZE, &before);
  const rlimit few{8, before.rlim_max};
  ::setrlimit(RLIMIT_FSIZE, &few);
  const auto result = call();
  ::setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, handler);
  return result;
}
