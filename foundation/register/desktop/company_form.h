#pragma once

#include "foundation/register/company.h"
#include "foundation/widgets/desktop/record_form.h"

#include <QScrollArea>

class QGridLayout;
class QVBoxLayout;

namespace winvrx {

/// The frame "Cadastro:": every field of a company record, in the record's order.
class CompanyForm : public QScrollArea {
    Q_OBJECT

  public:
    explicit CompanyForm(QWidget* parent);

    void showCompany(const Company& company);
    /// The company shown, with what was typed since.
    [[nodiscard]] Company typed() const;
    [[nodiscard]] bool isDirty() const { return typed() != shown_; }
    void focusFirst();

  signals:
    void edited();

  private:
    void addGroup(QVBoxLayout& column, const QString& heading, int group);

    RecordForm<Company> fields_;
    Company shown_;
};

}  // namespace winvrx
