#pragma once

#include "tools/transfer/transferencia.h"

#include <QWidget>

#include <functional>

class QBoxLayout;
class QComboBox;
class QLabel;
class QLayout;

namespace winvrx {

/// The frame "Cópia de Segurança da Base de Dados:" of the main window.
class TransferFrame final : public QWidget {
    Q_OBJECT

  public:
    /// `imported` is called when other records lie in the folder in use.
    TransferFrame(const Workplace& at, const TransferDesk& desk, std::function<void()> imported,
                  QWidget* parent);

  private:
    void build();
    [[nodiscard]] QWidget* buildTarget();
    [[nodiscard]] QLayout* buildCommands();
    void addButton(QBoxLayout& row, const QString& caption, const QString& name, const QString& tip,
                   std::function<void()> act);
    void addTool(QBoxLayout& row, const char* icon, const QString& spoken, const QString& name,
                 const QString& tip, std::function<void()> act);
    /// The drives that are there now, with the room that they have.
    void fillDrives();
    void transfer();
    void eject();
    bool eventFilter(QObject* watched, QEvent* event) override;

    Workplace at_;
    TransferDesk desk_;
    Transferencia screen_;
    std::function<void()> imported_;
    QComboBox* direction_ = nullptr;
    QComboBox* target_ = nullptr;
    QLabel* source_ = nullptr;
};

/// What the frame takes from the system. The references outlive it.
[[nodiscard]] TransferDesk systemTransferDesk(Disk& disk, const Drives& drives,
                                              SafetyCopies& copies, const Archiver& archiver);

}  // namespace winvrx
