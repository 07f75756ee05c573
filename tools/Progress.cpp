#include "Progress.h"

#include <fmt/core.h>
#include <unistd.h>

#include <cstdio>

namespace preview {

namespace {

constexpr std::size_t kBarWidth = 30;

}  // namespace

std::string ProgressBar(std::size_t done, std::size_t all) {
  const std::size_t filled = all == 0 ? kBarWidth : kBarWidth * done / all;
  return fmt::format("[{}{}] {}/{}", std::string(filled, '#'), std::string(kBarWidth - filled, '.'),
                     done, all);
}

Progress::Progress(std::size_t all) : all_(all), isTerminal_(isatty(STDERR_FILENO) != 0) {}

void Progress::Show(std::size_t done) const {
  if (!isTerminal_) return;
  fmt::print(stderr, "\r{}", ProgressBar(done, all_));
  std::fflush(stderr);
}

void Progress::Clear() const {
  if (isTerminal_) fmt::print(stderr, "\r\033[K");
}

}  // namespace preview
