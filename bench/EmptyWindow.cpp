// The floor that start-up is measured against: a window with a menu and nothing else.

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>

int main(int argumentCount, char* arguments[]) {
  const QApplication application(argumentCount, arguments);
  QMainWindow window;
  window.menuBar()->addMenu("&File")->addAction("E&xit", &window, &QWidget::close);
  window.resize(640, 662);
  window.show();
  return QApplication::exec();
}
