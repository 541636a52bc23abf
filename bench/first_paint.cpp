// Linked into a program that shows windows: it writes the title of the first one that is painted, and ends the process
// as soon as all of that window is on its surface. Nothing of the program is changed or left out up to then.

#include <cstdio>
#include <cstdlib>

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

namespace {

class FirstPaint final : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint && !painted_) {
      const auto* window = qobject_cast<const QWidget*>(watched);
      if (window != nullptr && window->isWindow()) {
        painted_ = true;
        // Painting a window and handing it over is one step, with all that lies on it: this comes behind it.
        const QByteArray title = window->windowTitle().toUtf8();
        QMetaObject::invokeMethod(
            this, [title] { end(title); }, Qt::QueuedConnection);
      }
    }
    return false;
  }

 private:
  static void end(const QByteArray& title) {
    std::puts(title.constData());
    std::fflush(stdout);
    std::_Exit(EXIT_SUCCESS);
  }

  bool painted_ = false;
};

void watch() {
  QCoreApplication::instance()->installEventFilter(new FirstPaint{QCoreApplication::instance()});
}
Q_COREAPP_STARTUP_FUNCTION(watch)

}  // namespace
