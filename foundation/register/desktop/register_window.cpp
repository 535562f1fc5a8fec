#include "foundation/register/desktop/register_window.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/enter_key.h"
#include "foundation/widgets/desktop/look.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace winvrx {

RegisterWindow::RegisterWindow(ListScreen& list, const Texts& texts, QWidget* parent)
    : ScreenWindow(texts.screen, texts.title, parent), commands_(list) {
    list_ = new RegisterList(texts.screen, texts.listTitle, texts.searchHint, texts.headings, this);
    list_->setEmptyTexts(texts.emptyList, texts.emptyAction);
    connect(list_, &RegisterList::chosen, this, &RegisterWindow::choose);
    connect(list_, &RegisterList::entered, this, [this] { form_->focusFirst(); });
    connect(list_, &RegisterList::firstRequested, this, &RegisterWindow::startNew);
    addCommands(texts);
}

void RegisterWindow::addCommands(const Texts& texts) {
    const auto named = [this](const char* thing) { return objectName().toUtf8() + '.' + thing; };
    addCommand({"add", texts.include, Qt::Key_Insert, named("include"), [this] { include(); }});
    change_ = addCommand({"edit", texts.change, Qt::Key_F2, named("change"), [this] { change(); }});
    remove_ = addCommand({"delete", QStringLiteral("Excluir"), Qt::Key_Delete, named("delete"),
                          [this] { remove(); }, list_});
    addDefaultButton(
        {"save", QStringLiteral("&Gravar"), QKeySequence::Save, named("save"), [this] { save(); }})
        ->setToolTip(QKeySequence(QKeySequence::Save).toString(QKeySequence::NativeText));
    addLeavingButton(named("close"));
    addPageKeys([this](int by) { list_->moveBy(by); });
}

void RegisterWindow::assemble(RecordEditor* form, QWidget* underList, ListRoom room) {
    form_ = form;
    connect(form_, &RecordEditor::edited, this, &RegisterWindow::showState);
    const auto [left, column] = look::part(this);
    column->addWidget(list_, 1);
    if (underList) column->addWidget(underList);
    setSplitBody({left, room == ListRoom::Wide ? 40 : 30}, {form->widget(), 60});
}

void RegisterWindow::openAt(std::optional<std::size_t> position) {
    commands_.load();
    refresh(position);
    if (current_)
        list_->takeFocus();
    else
        form_->focusFirst();
}

void RegisterWindow::refresh(std::optional<std::size_t> position) {
    std::vector<ListRow> rows;
    for (std::size_t row = 0; row < commands_.count(); ++row)
        rows.push_back(commands_.rowAt(row));
    list_->setRows(rows);
    if (rows.empty()) position.reset();
    if (position) position = std::min(*position, rows.size() - 1);
    turnTo(position);
}

void RegisterWindow::refreshAt(const std::string& shown) {
    const auto position = commands_.positionOf(shown);
    refresh(current_ && position ? position : current_);
}

std::string RegisterWindow::currentBytes() const {
    return current_ ? commands_.bytesAt(*current_) : std::string();
}

void RegisterWindow::recover() {
    if (!commands_.failed() || form_->isDirty()) return showState();
    const std::string shown = currentBytes();
    commands_.reloadQuietly();
    refreshAt(shown);
}

void RegisterWindow::runOnList(const std::function<bool()>& command) {
    if (!mayClose()) return;
    const std::string shown = currentBytes();
    if (!command()) return recover();
    refreshAt(shown);
}

void RegisterWindow::turnTo(std::optional<std::size_t> position) {
    current_ = position;
    list_->mark(position);
    form_->show(position);
    setSubtitle(toQt(commands_.counts()));
    const bool understood = position && list_->isUnderstood(*position);
    form_->widget()->setEnabled(!position || understood);
    change_->setEnabled(understood);
    remove_->setEnabled(position.has_value());
    showState();
}

void RegisterWindow::showState() {
    QString text = toQt(commands_.newRecordTitle());
    if (current_) text = QStringLiteral("%1 de %2").arg(*current_ + 1).arg(list_->count());
    if (current_ && !list_->isUnderstood(*current_))
        text += QStringLiteral(" · Linha não entendida: fica no arquivo como está");
    if (form_->isDirty()) text += QStringLiteral(" · Alterações não gravadas");
    setState(text);
}

void RegisterWindow::choose(std::size_t position) {
    if (current_ == position) return;
    if (!mayClose()) {
        // The list is still handling the key or click that moved it.
        QMetaObject::invokeMethod(
            this, [this] { list_->mark(current_); }, Qt::QueuedConnection);
        return;
    }
    turnTo(position);
}

void RegisterWindow::startNew() {
    if (!mayClose()) return;
    turnTo(std::nullopt);
    form_->focusFirst();
}

void RegisterWindow::include() {
    finishTyping();
    if (current_) return startNew();
    if (!form_->isDirty()) return form_->focusFirst();
    includeTyped();
}

void RegisterWindow::includeTyped() {
    if (!form_->save(std::nullopt)) return recover();
    refresh(commands_.count() - 1);
    list_->takeFocus();
}

void RegisterWindow::change() {
    if (!current_) return;
    finishTyping();
    if (!form_->isDirty()) return form_->focusFirst();
    if (!form_->save(current_)) return recover();
    refresh(current_);
}

void RegisterWindow::remove() {
    if (!current_) return;
    if (!commands_.remove(*current_)) return recover();
    refresh(current_);
}

void RegisterWindow::save() {
    if (current_) return change();
    finishTyping();
    includeTyped();
}

bool RegisterWindow::mayClose() {
    return !form_->isDirty() || commands_.confirmDiscardTyped();
}

void RegisterWindow::keyPressEvent(QKeyEvent* event) {
    if (isEnter(*event) && form_->moveToNextPage(focusWidget())) return;
    ScreenWindow::keyPressEvent(event);
}

}  // namespace winvrx
