#pragma once

#include "report/print_calibration.h"

#include <QString>
#include <QWidget>

#include <array>
#include <string>

class QLabel;
class QVBoxLayout;

namespace winvrx {

class Field;

/// The scale of one printer and stock, and the distances that are measured on the calibration
/// sheet.
class ScalePanel : public QWidget {
    Q_OBJECT

  public:
    /// `paper` ends the line that names the printer: "neste tipo de cartão". The calibration
    /// outlives the panel.
    ScalePanel(PrintCalibration& calibration, QString paper, QWidget* parent = nullptr);

    /// Shows the scale on record; what is typed and not recorded gives way.
    void refresh();
    /// Asks before figures typed and not recorded are left behind. True when they may go.
    [[nodiscard]] bool confirmLeaving();

  signals:
    /// A command was carried out, and what is said of it.
    void done(const QString& text);

  private:
    using Fields = std::array<Field*, 4>;
    using Texts = std::array<std::string, 4>;

    void addFields(QVBoxLayout& column, Fields& fields, const std::array<const char*, 4>& captions,
                   const char* name);
    void addButton(QVBoxLayout& column, const QString& text, const char* name,
                   void (ScalePanel::*act)());
    void saveScale();
    void saveDistances();
    void printSheet();
    void showScale();
    [[nodiscard]] static Texts textsOf(const Fields& fields);

    PrintCalibration& calibration_;
    QString paper_;
    QLabel* printer_ = nullptr;
    Fields figures_{};
    Fields distances_{};
    Texts shown_;
};

}  // namespace winvrx
