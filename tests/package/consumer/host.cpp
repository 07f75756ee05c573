// A host in C++: the same points as those of host.c.
#include <barhatch.hpp>
#include <cstdio>

int main() {
  barhatch::Initialise();
  barhatch::LinearBarcode barcode;
  barcode.type = barhatch::Type::kCode39;
  barcode.text = u"ABC-123";
  barcode.width = 60.0;
  barcode.height = 12.0;
  barcode.pattern = barhatch::Pattern::kPoints;
  const auto fill = barhatch::Generate(barcode);
  if (!fill) return 1;
  std::printf("%zu points\n", fill->Points().size());
  return 0;
}
