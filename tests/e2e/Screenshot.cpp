// screenshot OUT.png [LEFT TOP WIDTH HEIGHT]: a picture of the display, or of a part of it.
#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>
#include <cstdlib>

int main(int argc, char** argv) {
  const QGuiApplication application(argc, argv);
  if (argc != 2 && argc != 6) return 2;
  const auto number = [&](int index) { return std::atoi(argv[index]); };
  QScreen* const screen = QGuiApplication::primaryScreen();
  const QPixmap picture = argc == 2 ? screen->grabWindow(0) : screen->grabWindow(0, number(2), number(3), number(4), number(5));
  return picture.save(argv[1]) ? 0 : 1;
}
