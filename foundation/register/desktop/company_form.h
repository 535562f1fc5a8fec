#pragma once

#include "foundation/register/company.h"
#include "foundation/register/desktop/record_form.h"

namespace winvrx {

/// The frame "Cadastro:": every field of a company record, in the record's order.
class CompanyForm : public RecordForm<Company> {
  public:
    CompanyForm(ListCommands<Company>& companies, QWidget* window);
};

}  // namespace winvrx
