#include <QApplication>
#include <QListView>
#include <QMainWindow>

// The baseline of the start: a window with an empty list.
int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QMainWindow window;
  window.setCentralWidget(new QListView(&window));
  window.resize(900, 600);
  window.show();
  return QApplication::exec();
}
