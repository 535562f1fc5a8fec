#pragma once

#include "timecard/card/cartao_ponto_dados.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QRadioButton;

namespace winvrx {

/// How "Aplicar Ponto" and "Aplicar Ponto p/Todos" fill the cards: fixed or varied minutes, the
/// situation of days of work without times, the same working hours for everyone of the shift.
class ApplicationBar : public QWidget {
    Q_OBJECT

  public:
    explicit ApplicationBar(CartaoPontoDados& command, QWidget* parent = nullptr);

    /// Shows the command's choices.
    void refresh();
    [[nodiscard]] bool sameHours() const;

  private:
    [[nodiscard]] QRadioButton* buildMinutes(const QString& text, const QString& objectName,
                                             Minutes minutes);
    void buildSituation();
    void showCaption();

    CartaoPontoDados& command_;
    QRadioButton* fixed_;
    QRadioButton* varied_;
    QComboBox* situation_;
    QCheckBox* sameHours_;
};

}  // namespace winvrx
