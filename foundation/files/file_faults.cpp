#include "foundation/files/file_faults.h"

#include <array>

namespace winvrx {

namespace {

std::string operationName(FileFault::Operation operation) {
    static constexpr std::array kNames = {"ler", "gravar", "excluir", "listar", "criar a pasta"};
    return kNames.at(static_cast<std::size_t>(operation));
}

class FileProblemCategory final : public std::error_category {
  public:
    [[nodiscard]] const char* name() const noexcept override { return "record"; }
    [[nodiscard]] std::string message(int problem) const override {
        switch (static_cast<FileProblem>(problem)) {
            case FileProblem::Link:
                return "há um atalho (link) no lugar do arquivo";
            case FileProblem::NotAPlainFile:
                return "há um dispositivo no lugar do arquivo";
            case FileProblem::TooLarge:
                return "o arquivo passa de " + std::to_string(kLargestFile >> 20U) + " MB";
            case FileProblem::TooManyLines:
                return "o arquivo passa de " + std::to_string(kMostLines) + " linhas";
        }
        return "problema desconhecido";
    }
};

/// What the operator calls it; a folder's path may end with a separator.
std::string nameOf(const std::filesystem::path& file) {
    const auto name = file.has_filename() ? file.filename() : file.parent_path().filename();
    if (!name.empty()) return name.string();
    return file.empty() ? "a pasta de dados" : file.string();
}

std::string causeText(std::error_code cause) {
    const std::error_condition condition = cause.default_error_condition();
    if (condition == std::errc::no_space_on_device) return "o disco está cheio";
    if (condition == std::errc::permission_denied ||
        condition == std::errc::operation_not_permitted ||
        condition == std::errc::read_only_file_system)
        return "não há permissão de gravação ou leitura";
    if (condition == std::errc::no_such_file_or_directory) return "a pasta não foi encontrada";
    if (condition == std::errc::device_or_resource_busy)
        return "outro programa está usando o arquivo";
    if (condition == std::errc::io_error) return "o disco não respondeu";
    if (condition == std::errc::is_a_directory) return "há uma pasta com esse nome";
    if (condition == std::errc::file_too_large) return "o arquivo é grande demais";
    return cause.message();
}

}  // namespace

std::error_code make_error_code(FileProblem problem) {
    static const FileProblemCategory category;
    return {static_cast<int>(problem), category};
}

FileFault::FileFault(Operation operation, const std::filesystem::path& file, std::error_code cause)
    : Fault(operationName(operation) + " " + file.string() + ": " + cause.message(),
            "Não foi possível " + operationName(operation) + " \"" + nameOf(file) +
                "\": " + causeText(cause) + "."),
      file_(file),
      cause_(cause) {}

}  // namespace winvrx
