#pragma once

#include "personnel/invoice_letter/xml_reader.h"

namespace winvrx {

/// Reads in the encoding that the document declares: UTF-8, Latin-1, or what else Qt knows.
class QtXmlReader final : public XmlReader {
  public:
    void read(const std::string& bytes,
              const std::function<void(const XmlElement&)>& take) const override;
};

}  // namespace winvrx
