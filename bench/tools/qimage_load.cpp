// Milliseconds that QImage alone takes to load a picture file, once, in a
// fresh process: the run-time also loads its picture once, cold.
#include <QGuiApplication>
#include <QImage>
#include <chrono>
#include <cstdio>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  QGuiApplication app(argc, argv);
  const auto start = std::chrono::steady_clock::now();
  const QImage image(QString::fromLocal8Bit(argv[1]));
  const auto end = std::chrono::steady_clock::now();
  if (image.isNull()) return 1;
  std::printf("%.1f\n", std::chrono::duration<double, std::milli>(end - start).count());
  return 0;
}
