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
        const int key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event)->key()
                                                          : Qt::Key_unknown;
        if (key != Qt::Key_Return && key != Qt::Key_Enter)
            return QObject::eventFilter(watched, event);
        run_();
        return true;
    }

  private:
    std::function<void()> run_;
};

}  // namespace

void onEnter(QWidget& list, std::function<void()> run) {
    new EnterKey(list, std::move(run));
}

}  // namespace winvrx
