#include <QApplication>
#include <QIcon>
#include <QStringList>

#include "app/entry.h"
#include "core/system.h"
#include "platform/platform.h"
#include "robot/agent.h"
#include "widgets/look.h"
#include "widgets/qt_shell.h"
#include "widgets/screen.h"

int main(int argc, char** argv) {
  // A robot cannot see into a chooser of the desktop's own.
  if (qEnvironmentVariableIsSet("VERMANTO_ROBOT")) QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  QApplication application{argc, argv};
  QApplication::setApplicationName(QStringLiteral("vermanto"));
  QApplication::setApplicationVersion(QStringLiteral(VERMANTO_VERSION));
  ecr::install_system(&ecr::host_system());
  ecr::apply_look(application, ecr::wanted_scheme());

  ecr::robot::attach();
  ecr::Stage stage;
  ecr::QtShell shell{stage};
  ecr::install_shell(&shell);
  ecr::Main(stage, QApplication::applicationDirPath(), QApplication::arguments().mid(1).join(u' '));
  return QApplication::exec();
}
