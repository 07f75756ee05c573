// A host in C++: the same points as those of host.c.
#include <barhatch.hpp>
#include <cstdio>

int main() {
  barhatch::Job job;
  job.symbology = barhatch::Symbology::kCode39;
  job.text = "ABC-123";
  job.width = 60.0;
  job.height = 12.0;
  job.pattern = barhatch::Pattern::kPoints;
  const barhatch::Result mark = barhatch::Mark(job);
  if (!mark) return 1;
  std::printf("%zu points\n", mark.Points().size());
  return 0;
}
