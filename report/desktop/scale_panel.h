#pragma once

#include "report/print_scale.h"

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
    using Texts = std::array<std::string, 4>;

    explicit ScalePanel(QWidget* parent = nullptr);

    /// An empty printer disables what would need one.
    void showScale(const QString& printer, const PrintScale& scale);
    void clearDistances();
    /// Figures typed and not recorded.
    [[nodiscard]] bool hasTyped() const;

  signals:
    void scaleTyped(const winvrx::ScalePanel::Texts& figures);
    void distancesTyped(const winvrx::ScalePanel::Texts& distances);
    void sheetRequested();

  private:
    using Fields = std::array<Field*, 4>;

    void addFields(QVBoxLayout& column, Fields& fields, const std::array<const char*, 4>& captions,
                   const char* name);
    void addButton(QVBoxLayout& column, const QString& text, const char* name,
                   void (ScalePanel::*give)());
    void giveScale();
    void giveDistances();
    void giveSheet();
    [[nodiscard]] static Texts textsOf(const Fields& fields);

    QLabel* printer_ = nullptr;
    Fields figures_{};
    Fields distances_{};
    Texts shown_;
};

}  // namespace winvrx
