// What the writers wrote, read back by plain readers of their formats, are the strokes of the
// library: the same marks in the same order, for every pattern of a linear symbol and of a Data
// Matrix.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "CsvWriter.h"
#include "DxfWriter.h"
#include "GcodeWriter.h"
#include "Request.h"
#include "SvgWriter.h"

namespace preview {

namespace {

Drawing DrawingOfPattern(std::int32_t symbology, std::int32_t pattern) {
  Request request;
  request.job.symbology = symbology;
  request.text = "A-1";
  request.job.pattern = pattern;
  request.job.gap = 0.31;
  return DrawingOf(ResultOf(request), "A-1 \xC3\xA4;\n<&");
}

std::vector<std::string> Lines(const std::string& text) {
  std::istringstream in(text);
  std::vector<std::string> lines;
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

std::vector<Stroke> ReadCsv(const std::string& csv) {
  std::vector<Stroke> marks;
  for (const std::string& line : Lines(csv)) {
    Stroke s{};
    char comma = 0;
    std::istringstream in(line);
    if (!(in >> s.x0 >> comma >> s.y0)) continue;
    if (!(in >> comma >> s.x1 >> comma >> s.y1)) s = {s.x0, s.y0, s.x0, s.y0};
    marks.push_back(s);
  }
  return marks;
}

// Pairs of a group code and a value; the entities are those between ENTITIES and the next ENDSEC.
std::vector<Stroke> ReadDxf(const std::string& dxf, const std::string& entity) {
  const std::vector<std::string> lines = Lines(dxf);
  EXPECT_EQ(lines.size() % 2, 0u);
  EXPECT_EQ(lines.back(), "EOF");
  std::vector<Stroke> marks;
  bool isInside = false;
  for (std::size_t i = 0; i + 1 < lines.size(); i += 2) {
    const int code = std::stoi(lines[i]);
    const std::string& value = lines[i + 1];
    if (code == 2 && value == "ENTITIES") isInside = true;
    if (code == 0 && value == "ENDSEC") isInside = false;
    if (!isInside) continue;
    if (code == 0) {
      EXPECT_EQ(value, entity);
      marks.emplace_back();
    }
    const double number = std::strtod(value.c_str(), nullptr);
    if (code == 10) marks.back().x0 = marks.back().x1 = number;
    if (code == 20) marks.back().y0 = marks.back().y1 = number;
    if (code == 11) marks.back().x1 = number;
    if (code == 21) marks.back().y1 = number;
  }
  return marks;
}

// A controller that knows G0, G1, G4, G21, G90, M2, M3, M4 and M5.
class Controller {
 public:
  void Run(const std::string& program) {
    for (const std::string& line : Lines(program)) {
      ASSERT_FALSE(isEnded_) << line;
      RunLine(line.substr(0, line.find(';')));
    }
    EXPECT_TRUE(isEnded_);
  }

  std::vector<Stroke> marks;
  std::vector<double> dwells;
  double power = 0.0;
  double feed = 0.0;
  double jumpFeed = 0.0;
  std::string laser;

 private:
  void RunLine(const std::string& line) {
    std::map<char, double> words;
    std::istringstream in(line);
    std::string command;
    if (!(in >> command)) return;
    for (std::string word; in >> word;) words[word[0]] = std::strtod(word.c_str() + 1, nullptr);
    EXPECT_EQ(line.find('e'), std::string::npos) << line;
    if (command == "G21") isMillimetres_ = true;
    if (command == "G90") isAbsolute_ = true;
    if (command == "M3" || command == "M4") SwitchOn(command, words);
    if (command == "M5") isOn_ = false;
    if (command == "G4") Dwell(words.at('P'));
    if (command == "G0" || command == "G1") Move(command, words);
    if (command == "M2") {
      EXPECT_FALSE(isOn_);
      isEnded_ = true;
    }
  }

  void SwitchOn(const std::string& command, const std::map<char, double>& words) {
    laser = command;
    power = words.at('S');
    isOn_ = true;
  }

  void Dwell(double seconds) {
    EXPECT_TRUE(isOn_);
    dwells.push_back(seconds);
    marks.push_back({x_, y_, x_, y_});
  }

  void Move(const std::string& command, const std::map<char, double>& words) {
    EXPECT_TRUE(isMillimetres_ && isAbsolute_);
    EXPECT_EQ(isOn_, command == "G1") << "the laser is on exactly where it marks";
    if (command == "G1") marks.push_back({x_, y_, words.at('X'), words.at('Y')});
    (command == "G1" ? feed : jumpFeed) = words.at('F');
    x_ = words.at('X');
    y_ = words.at('Y');
  }

  bool isMillimetres_ = false;
  bool isAbsolute_ = false;
  bool isOn_ = false;
  bool isEnded_ = false;
  double x_ = -1.0;
  double y_ = -1.0;
};

double Attribute(const std::string& line, const std::string& name) {
  const std::size_t at = line.find(" " + name + "=\"");
  return at == std::string::npos ? -1e9 : std::strtod(line.c_str() + at + name.size() + 3, nullptr);
}

double Property(const std::string& line, const std::string& name) {
  const std::size_t at = line.find(name + ":");
  return at == std::string::npos ? -1.0 : std::strtod(line.c_str() + at + name.size() + 1, nullptr);
}

std::vector<std::string> Elements(const std::string& svg) {
  std::vector<std::string> elements;
  for (const std::string& line : Lines(svg)) {
    if (line.compare(0, 5, "<line") == 0 || line.compare(0, 7, "<circle") == 0) {
      elements.push_back(line);
    }
  }
  return elements;
}

std::vector<Stroke> ReadSvg(const std::string& svg, double margin, double height) {
  std::vector<Stroke> marks;
  for (const std::string& line : Elements(svg)) {
    const bool isDot = line[1] == 'c';
    const auto x = [&](const char* name) { return Attribute(line, name) - margin; };
    const auto y = [&](const char* name) { return height + margin - Attribute(line, name); };
    marks.push_back(isDot ? Stroke{x("cx"), y("cy"), x("cx"), y("cy")}
                          : Stroke{x("x1"), y("y1"), x("x2"), y("y2")});
  }
  return marks;
}

void ExpectSame(const std::vector<Stroke>& read, const std::vector<Stroke>& marks, double within) {
  ASSERT_EQ(read.size(), marks.size());
  for (std::size_t i = 0; i < marks.size(); ++i) {
    ASSERT_NEAR(read[i].x0, marks[i].x0, within) << i;
    ASSERT_NEAR(read[i].y0, marks[i].y0, within) << i;
    ASSERT_NEAR(read[i].x1, marks[i].x1, within) << i;
    ASSERT_NEAR(read[i].y1, marks[i].y1, within) << i;
  }
}

constexpr Look kLook = {1.5, 0.3, Part::kLight, StrokeEnds::kFlush};
constexpr double kNanometre = 1e-6;

class Writers : public ::testing::TestWithParam<std::tuple<std::int32_t, std::int32_t>> {
 protected:
  Drawing drawing_ = DrawingOfPattern(std::get<0>(GetParam()), std::get<1>(GetParam()));
  bool HasPoints() const { return drawing_.kind == MarkKind::kPoints; }
};

}  // namespace

TEST_P(Writers, CsvHasTheMarksToTheLastBit) {
  const std::string csv = CsvOf(drawing_);
  EXPECT_EQ(Lines(csv).front(), HasPoints() ? "x,y" : "x0,y0,x1,y1");
  ExpectSame(ReadCsv(csv), drawing_.marks, 0.0);
}

TEST_P(Writers, DxfHasTheMarksToTheLastBit) {
  ExpectSame(ReadDxf(DxfOf(drawing_), HasPoints() ? "POINT" : "LINE"), drawing_.marks, 0.0);
}

TEST_P(Writers, GcodeMarksTheFill) {
  Speeds speeds;
  speeds.mark = 12.5;
  speeds.jump = 250.0;
  speeds.dwell = 7.0;
  Laser laser;
  laser.power = 87.5;
  Controller controller;
  controller.Run(GcodeOf(drawing_, speeds, laser));
  ExpectSame(controller.marks, drawing_.marks, kNanometre);
  EXPECT_EQ(controller.power, 87.5);
  EXPECT_EQ(controller.laser, "M3");
  EXPECT_EQ(controller.jumpFeed, 15000.0);
  EXPECT_EQ(controller.feed, HasPoints() ? 0.0 : 750.0);
  EXPECT_EQ(controller.dwells, HasPoints() ? std::vector<double>(drawing_.marks.size(), 0.007)
                                           : std::vector<double>());
}

TEST_P(Writers, SvgDrawsTheMarks) {
  const std::string svg = SvgOf(drawing_, kLook);
  ExpectSame(ReadSvg(svg, 1.5, drawing_.height), drawing_.marks, kNanometre);
  EXPECT_EQ(svg.find("style"), std::string::npos);
  EXPECT_NE(svg.find("<title>A-1 \xC3\xA4;\xC2\xB7&lt;&amp;</title>"), std::string::npos);
}

TEST_P(Writers, AnimatedSvgIsTheSamePictureInMarkingOrder) {
  const Speeds speeds;
  const std::string svg = AnimatedSvgOf(drawing_, kLook, speeds);
  ExpectSame(ReadSvg(svg, 1.5, drawing_.height), drawing_.marks, kNanometre);
  double end = 0.0;
  for (const std::string& line : Elements(svg)) {
    EXPECT_GE(Property(line, "--t"), end - 2e-4) << "a mark begins when the last one has ended";
    end = Property(line, "--t") + Property(line, "--d");
  }
  EXPECT_GT(end, 1.99);
  EXPECT_LT(end, 12.01);
  // What is not animated is drawn: nothing but keyframes hides a mark.
  EXPECT_EQ(svg.find("opacity"),
            svg.find("@keyframes mark") + std::string("@keyframes mark{0%{").size());
  EXPECT_EQ(svg.find(" opacity"), std::string::npos);
}

std::string CaseName(const ::testing::TestParamInfo<std::tuple<std::int32_t, std::int32_t>>& info) {
  const char* const kind = std::get<0>(info.param) == BARHATCH_CODE_39 ? "Linear" : "Matrix";
  return kind + std::to_string(std::get<1>(info.param));
}

INSTANTIATE_TEST_SUITE_P(EveryPattern, Writers,
                         ::testing::Combine(::testing::Values(BARHATCH_CODE_39,
                                                              BARHATCH_DATA_MATRIX),
                                            ::testing::Values(0, 1, 2, 3, 5, 6)),
                         CaseName);

TEST(Gcode, StrokesThatGoOnAreMarkedWithoutSwitching) {
  Drawing drawing;
  drawing.marks = {{0, 0, 1, 0}, {1, 0, 1, 1}, {2, 1, 3, 1}};
  Laser laser;
  laser.mode = LaserMode::kDynamic;
  EXPECT_EQ(GcodeOf(drawing, {}, laser),
            "; barhatch\nG21 ; millimetres\nG90 ; absolute\nM5\n"
            "G0 X0 Y0 F60000\nM4 S300\nG1 X1 Y0 F6000\nG1 X1 Y1 F6000\nM5\n"
            "G0 X2 Y1 F60000\nM4 S300\nG1 X3 Y1 F6000\nM5\nG0 X0 Y0 F60000\nM2\n");
}

TEST(Gcode, NumbersHaveNoExponentAndTitlesStayInTheirComment) {
  Drawing drawing;
  drawing.title = "a\nM3 S9\xC3\xA4";
  drawing.marks = {{1e-9, -1e-9, 1234567.25, 0.000001}};
  const std::string program = GcodeOf(drawing, {}, {});
  EXPECT_NE(program.find("; barhatch: a?M3 S9??\n"), std::string::npos);
  EXPECT_NE(program.find("G0 X0 Y0 "), std::string::npos);
  EXPECT_NE(program.find("G1 X1234567.25 Y0.000001 "), std::string::npos);
}

TEST(Dxf, HasTheHeaderThatReadersTake) {
  Drawing drawing;
  drawing.width = 60.0;
  drawing.height = 12.5;
  const std::string dxf = DxfOf(drawing);
  EXPECT_NE(dxf.find("  9\n$ACADVER\n  1\nAC1009\n"), std::string::npos);
  EXPECT_NE(dxf.find("  9\n$INSUNITS\n 70\n4\n"), std::string::npos);
  EXPECT_NE(dxf.find("  9\n$EXTMAX\n 10\n60.0\n 20\n12.5\n 30\n0.0\n"), std::string::npos);
}

}  // namespace preview
