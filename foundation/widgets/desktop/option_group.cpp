#include "foundation/widgets/desktop/option_group.h"

#include "foundation/widgets/desktop/look.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

namespace winvrx {

OptionGroup::OptionGroup(const QString& caption, const QString& objectName, int rows,
                         QWidget* parent)
    : QWidget(parent),
      caption_(QString(caption).remove(QLatin1Char('&'))),
      rows_(rows),
      grid_(new QGridLayout),
      options_(new QButtonGroup(this)) {
    setObjectName(objectName);
    auto* column = new QVBoxLayout(this);
    look::layOutPart(*column);
    QLabel* heading = look::heading(caption, this);
    heading->setBuddy(this);
    column->addWidget(heading);
    grid_->setHorizontalSpacing(look::kGroupGap);
    grid_->setVerticalSpacing(look::kSmallGap);
    column->addLayout(grid_);
    connect(options_, &QButtonGroup::idClicked, this, [this](int id) {
        setFocusProxy(options_->button(id));
        emit picked(id);
    });
}

OptionGroup::OptionGroup(const QString& caption, const QString& objectName, int rows,
                         const std::vector<Option>& options, QWidget* parent)
    : OptionGroup(caption, objectName, rows, parent) {
    for (const Option& option : options)
        addOption(option.id, option.text, option.name);
}

void OptionGroup::addOption(int id, const QString& text, const QString& name) {
    auto* option = new QRadioButton(text, this);
    look::name(*option, objectName() + QLatin1Char('.') + name, text);
    option->setAccessibleDescription(caption_);
    const int before = static_cast<int>(options_->buttons().size());
    options_->addButton(option, id);
    grid_->addWidget(option, before % rows_, before / rows_);
    if (before == 0) setFocusProxy(option);
}

int OptionGroup::chosen() const {
    return options_->checkedId();
}

void OptionGroup::choose(int id) {
    QAbstractButton* option = options_->button(id);
    // An exclusive group does not let go of its last choice.
    options_->setExclusive(option != nullptr);
    if (option) {
        option->setChecked(true);
        setFocusProxy(option);
    } else if (QAbstractButton* former = options_->checkedButton()) {
        former->setChecked(false);
    }
    options_->setExclusive(true);
}

}  // namespace winvrx
