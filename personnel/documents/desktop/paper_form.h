#pragma once

#include "personnel/documents/paper_inputs.h"

#include <QWidget>

#include <map>
#include <string>

class QVBoxLayout;

namespace winvrx {

class Documentos;
class Field;

/// The inputs of the paper chosen, one below the other; dates, times and numbers side by side.
/// `screen` outlives the form.
class PaperForm : public QWidget {
    Q_OBJECT

  public:
    PaperForm(Documentos& screen, QWidget* parent);

    /// Shows the inputs of the paper that the screen is on, each with an Alt letter that its window
    /// has left for it. Once at least before the form is shown, when the window has its commands.
    void showPaper();
    /// Shows what the screen holds of them.
    void refresh();
    void focus(const std::string& input);
    void focusFirst();

  signals:
    void edited();

  private:
    [[nodiscard]] Field* make(const PaperInput& input, const QString& caption, QWidget* parent);

    Documentos& screen_;
    QVBoxLayout* column_;
    QWidget* inputs_ = nullptr;
    std::map<std::string, Field*> fields_;
    std::string first_;
};

}  // namespace winvrx
