// Marks a Data Matrix by a spiral in each module, in millimetres: prints the moves of the head.
#include <barhatch.hpp>
#include <cstdio>

int main() {
  barhatch::Initialise();

  barhatch::DataMatrix matrix;
  matrix.text = u"PART 4711-0815";
  matrix.height = 8.0;
  matrix.pattern = barhatch::Pattern::kSpiral;
  matrix.lineGap = 0.1;
  const std::optional<barhatch::Fill> fill = barhatch::Generate(matrix);
  if (!fill) {
    std::fprintf(stderr, "the library refused the Data Matrix\n");
    return 1;
  }
  std::printf("%zu strokes\n", fill->Segments().size());
  for (const barhatch::Segment& s : fill->Segments()) {
    std::printf("from %g %g to %g %g\n", s.xa, s.ya, s.xb, s.yb);
  }
  return 0;
}
