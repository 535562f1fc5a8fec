#pragma once

#include "foundation/desk/merge_words.h"
#include "foundation/desk/word_processor.h"
#include "foundation/files/file_system.h"

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

// The text of a document as a plain file that an office can read and change, in UTF-8 or
// Windows-1252. docs/document-templates.md tells its users how it is written:
//
//     ; a comment
//     = ACORDO DE COMPENSAÇÃO DE JORNADA          title
//     == CLÁUSULA 1ª                              heading
//     {nome}[, RG {rg}], empregad{o|a}, CPF {cpf:14}, trabalha
//     das {entrada} às {saida}.                   a paragraph, up to the next blank line
//     ^ centred                     > at the right
//     ? sindicato                                 the lines up to "?." only where the word holds
//     ?.                                          something; "?!" only where it is empty
//     |: 40 130                                   a table: its columns in millimetres ("|." without
//     |! Nascimento | Nome                        grid lines), a bold row,
//     |* filhos | {nascimento} | {filho}          a row for each entry of a list
//     _ {razao} // EMPREGADOR | {nome}            signatures side by side; " // " begins a line
//     @ 10                                        the size of what follows, in points
//     ---                                         a new page

namespace winvrx {

/// How a text speaks of a person: "{o|a}" becomes "o", "a" or "o(a)".
enum class Agreement { Neutral, Masculine, Feminine };

/// What a template is filled with. The words of a list's entry stand for those of the document.
struct DocumentWords {
    MergeWords words = {};
    Agreement agreement = Agreement::Neutral;
    std::map<std::string, std::vector<MergeWords>, std::less<>> lists = {};
};

/// A template as it was read; `name` is its file's.
struct DocumentTemplate {
    std::string name;
    std::string text;  ///< UTF-8
};

/// The file of that name in the first of `folders` that has it. Throws Fault when none has.
[[nodiscard]] DocumentTemplate loadTemplate(const FileSystem& files,
                                            const std::vector<std::filesystem::path>& folders,
                                            const std::string& name);

/// Throws Fault, naming the template, the line, and the word that is not known or what else makes
/// no sense there.
[[nodiscard]] Document composed(const DocumentTemplate& source, std::string title,
                                const DocumentWords& words);

/// One text of a template: words, agreement, and parts in brackets, which are left out when a word
/// in them is empty. Where a word left nothing, no double blank stays. "{cpf:14}" draws a line of
/// so many characters to write on where the word is empty. Throws Fault.
[[nodiscard]] std::string filledText(std::string_view text, const DocumentWords& words);

}  // namespace winvrx
