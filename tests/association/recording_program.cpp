#include <filesystem>
#include <fstream>

// Stands in for a program that Windows starts: writes what it was started with beside itself, one a
// line, "soffice.exe" into "soffice.exe.txt".

int wmain(int count, wchar_t** arguments) {
    const std::filesystem::path self(arguments[0]);
    const std::filesystem::path unfinished = self.string() + ".part";
    {
        std::ofstream out(unfinished, std::ios::binary);
        for (int i = 1; i < count; ++i) {
            const auto text = std::filesystem::path(arguments[i]).u8string();
            out << std::string(text.begin(), text.end()) << '\n';
        }
    }
    std::filesystem::rename(unfinished, self.string() + ".txt");
    return 0;
}
