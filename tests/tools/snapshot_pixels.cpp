// Checks sampled pixels of a TAMRIX_SNAPSHOT picture: figures are drawn
// without smoothing, so each sample has exactly the colour drawn there.
//
//   snapshot_pixels <snapshot.png> <pixels file>
//
// Each line of the pixels file is "x y colour" or "x y !colour", the colour
// a language colour number (red + 256 * green + 65536 * blue); "!" asks for
// any other colour. Lines starting with "#" and empty lines are skipped.
#include <QImage>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>

int main(int argc, char* argv[]) {
  if (argc != 3) {
    std::fprintf(stderr, "usage: snapshot_pixels <snapshot.png> <pixels file>\n");
    return 2;
  }
  const QImage shot(QString::fromLocal8Bit(argv[1]));
  if (shot.isNull()) {
    std::fprintf(stderr, "can't read %s\n", argv[1]);
    return 2;
  }
  std::ifstream checks(argv[2]);
  std::string line;
  int failures = 0;
  while (std::getline(checks, line)) {
    if (line.empty() || line[0] == '#') continue;
    std::istringstream fields(line);
    int x = 0;
    int y = 0;
    std::string expected;
    if (!(fields >> x >> y >> expected)) {
      std::fprintf(stderr, "bad line: %s\n", line.c_str());
      return 2;
    }
    const bool negated = expected[0] == '!';
    const long colour = std::stol(negated ? expected.substr(1) : expected);
    if (!shot.valid(x, y)) {
      std::printf("%d %d: outside the %dx%d snapshot\n", x, y, shot.width(), shot.height());
      ++failures;
      continue;
    }
    const QColor found = shot.pixelColor(x, y);
    const long actual = found.red() + 256L * found.green() + 65536L * found.blue();
    if ((actual == colour) == negated) {
      std::printf("%d %d: found %ld, expected %s\n", x, y, actual, expected.c_str());
      ++failures;
    }
  }
  return failures == 0 ? 0 : 1;
}
