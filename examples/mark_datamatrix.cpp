// Usage: mark_datamatrix [TEXT]
// Marks a Data Matrix by a spiral in each module, in millimetres: prints the moves of the head.
#include <barhatch.hpp>
#include <cstdio>
#include <string>

int main(int argc, char** argv) {
  if (argc > 2) {
    std::fprintf(stderr, "Usage: mark_datamatrix [TEXT]\n");
    return 2;
  }
  barhatch::Job job;
  job.symbology = barhatch::Symbology::kDataMatrix;
  job.conformance = barhatch::Conformance::kDevice;
  job.text = argc == 2 ? argv[1] : "PART 4711-0815";
  job.height = 8.0;
  job.pattern = barhatch::Pattern::kSpiral;
  job.gap = 0.1;

  const barhatch::Result mark = barhatch::Mark(job);
  if (!mark) {
    std::fprintf(stderr, "at %d: %s\n", static_cast<int>(mark.position()),
                 std::string(mark.message()).c_str());
    return 1;
  }
  std::printf("%zu strokes, %g mm of marking\n", mark.Segments().size(), mark.markLength());
  for (const barhatch::Segment& s : mark.Segments()) {
    std::printf("from %g %g to %g %g\n", s.xa, s.ya, s.xb, s.yb);
  }
  return 0;
}
