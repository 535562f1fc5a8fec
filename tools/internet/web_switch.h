#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace winvrx {

/// What an employer can take from the browsers of a computer, and give back.
enum class WebSwitch { Internet, Videos, Images };
inline constexpr std::array kWebSwitches = {WebSwitch::Internet, WebSwitch::Videos,
                                            WebSwitch::Images};

/// How a switch is named and remembered: while its marker file, of one line, stands in the data
/// folder, the switch blocks.
struct WebSwitchWords {
    std::string_view key;    ///< in names of files and commands: "internet"
    std::string_view title;  ///< on the screen
    std::string_view marker;
    std::string_view line;
    std::string_view releaseTitle;
    std::string_view releaseQuestion;
};

inline constexpr std::array<WebSwitchWords, 3> kWebSwitchWords = {{
    {"internet", "Internet", "Wblc.pdx", "System WbLc", "Desativando a Internet",
     "Confirma Liberar a Internet?"},
    {"videos", "Vídeos da Internet", "Wilc.pdx", "System WiLc", "Desativando Videos da Internet",
     "Confirma Liberar Vídeos da Internet?"},
    {"images", "Imagens da Internet", "Wmlc.pdx", "System WmLc", "Desativando Imagens da Internet",
     "Confirma Liberar Imagens da Internet?"},
}};

[[nodiscard]] constexpr const WebSwitchWords& wordsOf(WebSwitch which) {
    return kWebSwitchWords[static_cast<std::size_t>(which)];
}

}  // namespace winvrx
