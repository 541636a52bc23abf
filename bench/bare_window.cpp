// The least that a program of this toolkit can be: one window with one label. It has the size of the program's window,
// whose empty surface alone takes time and memory.

#include <QApplication>
#include <QLabel>
#include <QVBoxLayout>

int main(int argc, char** argv) {
  const QApplication application{argc, argv};
  QWidget window;
  window.setWindowTitle(QStringLiteral("A bare window"));
  window.resize(1024, 700);
  auto* layout = new QVBoxLayout{&window};
  layout->addWidget(new QLabel{QStringLiteral("One label"), &window});
  window.show();
  return QApplication::exec();
}
