#pragma once

#include <functional>
#include <string>

namespace winvrx {

/// An element of an XML document when it ends: its name without a name space, its attribute "Id",
/// and the text that stands directly in it. All are UTF-8.
struct XmlElement {
    std::string name;
    std::string id;
    std::string text;
};

/// What a document may hold, far above any event file.
inline constexpr std::size_t kDeepestElement = 100;
inline constexpr std::size_t kMostElements = 10'000;

/// Reads XML. Never fetches anything, and takes no document with a type definition, so that no
/// entity but XML's own five is ever replaced.
class XmlReader {
  public:
    virtual ~XmlReader() = default;

    /// Calls `take` for each element in the order in which they end. Throws Fault for what is not
    /// well-formed or beyond the limits.
    virtual void read(const std::string& bytes,
                      const std::function<void(const XmlElement&)>& take) const = 0;
};

}  // namespace winvrx
