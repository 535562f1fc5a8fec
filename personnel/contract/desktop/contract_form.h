#pragma once

#include "personnel/contract/booklet_box.h"
#include "personnel/contract/contract.h"

#include <QWidget>

#include <vector>

class QGridLayout;
class QLabel;
class QVBoxLayout;

namespace winvrx {

class Field;

/// The fields of a contract, and the page of the booklet that its box goes to. Says the pay in
/// words and the ends of a trial as they are typed.
class ContractForm : public QWidget {
    Q_OBJECT

  public:
    ContractForm(Date today, QWidget* parent);

    /// What the employee's record has of register number and sheet is shown and not typed.
    void showContract(const Contract& contract, const Employee& employee);
    [[nodiscard]] Contract typed() const;
    [[nodiscard]] bool isChanged() const;
    [[nodiscard]] BookletPlace place() const;

    void showFindings(const Findings<Contract>& findings);
    void focus(std::string Contract::*member);
    void focusFirst();

  signals:
    void edited();
    /// A field was left, or a choice was made.
    void finished();

  private:
    [[nodiscard]] QGridLayout* addGrid(QVBoxLayout& column, const char* title);
    void addFields(QGridLayout& grid, int group);
    void addPlace(QGridLayout& grid);
    [[nodiscard]] Field& field(std::string Contract::*member) const;
    void follow();
    void showParts(const Contract& contract);

    struct Placed {
        std::string Contract::*member;
        Field* field;
    };
    Date today_;
    std::vector<Placed> fields_;
    Contract shown_;
    Field* place_ = nullptr;
    QLabel* words_ = nullptr;
    QLabel* trial_ = nullptr;
};

}  // namespace winvrx
