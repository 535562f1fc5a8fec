#pragma once

#include "foundation/register/desktop/record_form.h"

#include <QLabel>
#include <QScrollArea>

namespace winvrx {

/// A form of one group of fields, with a note under them.
template <typename Record>
class NotedForm : public RecordForm<Record> {
  public:
    template <typename Placements>
    NotedForm(ListCommands<Record>& commands, const QString& screen, const Placements& placements,
              const QString& heading, const QString& note, QWidget* window)
        : RecordForm<Record>(commands, screen, window) {
        const auto [form, column] = look::part(window);
        column->addWidget(look::heading(heading, form));
        this->addGroup(placements, 0, *column);
        QLabel* words = look::label(note, look::TextSize::Hint, form);
        words->setWordWrap(true);
        column->addWidget(words);
        column->addStretch();
        this->setWidget(look::scrolled(form, window));
    }
};

}  // namespace winvrx
