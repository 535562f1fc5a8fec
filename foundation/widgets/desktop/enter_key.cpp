#include "foundation/widgets/desktop/enter_key.h"

#include <QKeyEvent>
#include <QWidget>

#include <utility>

namespace winvrx {

namespace {

class EnterKey : public QObject {
  public:
    EnterKey(QWidget& list, std::function<void()> run) : QObject(&list), run_(std::move(run)) {
        list.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::KeyPress || !isEnter(*static_cast<QKeyEvent*>(event)))
            return QObject::eventFilter(watched, event);
        run_();
        return true;
    }

  private:
    std::function<void()> run_;
};

}  // namespace

bool isEnter(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

void onEnter(QWidget& list, std::function<void()> run) {
    new EnterKey(list, std::move(run));
}

}  // namespace winvrx
