// A small program with one of everything that the robot can do and see. Its controls have the names and the kinds that
// the real program's have, its installation is laid out in the same way, and it knows nothing else of it.

#include <QApplication>
#include <QMessageBox>
#include <QTimer>

#include "practice/program.h"
#include "practice/screens.h"
#include "robot/agent.h"

int main(int count, char** arguments) {
  const QApplication application{count, arguments};
  ecr::robot::attach();
  const QString word = QCoreApplication::arguments().value(1);
  ecr::practice::log(QStringLiteral("Start ") + word);
  if (word == QLatin1String("BOX"))
    QMessageBox::warning(nullptr, QStringLiteral("Before"), QStringLiteral("No screen"));
  if (word == QLatin1String("END")) return 0;
  ecr::practice::Window window;
  window.show();
  if (word == QLatin1String("STOP")) QTimer::singleShot(200, &window, &QWidget::close);
  const int status = QApplication::exec();
  ecr::practice::log(QStringLiteral("End"));
  return status;
}
