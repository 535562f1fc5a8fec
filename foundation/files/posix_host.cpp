#include "foundation/files/host.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <fstream>
#include <iterator>
#include <sstream>
#include <thread>
#include <vector>

#include <pwd.h>
#include <signal.h>
#include <unistd.h>

namespace winvrx {

namespace {

/// Fields of /proc/PID/stat behind the name in parentheses, counted from 0.
constexpr std::size_t kState = 0;
constexpr std::size_t kStartTime = 19;

std::string contentOf(const std::string& file) {
    std::ifstream in(file);
    return {std::istreambuf_iterator<char>(in), {}};
}

std::string firstWordOf(const std::string& file) {
    std::istringstream words(contentOf(file));
    std::string word;
    words >> word;
    return word;
}

/// What a process is called in a lock: "4711 88231 6f0c…", its number, when it started and in which
/// run of the computer. The last two are missing where the system does not tell them.
std::string nameOf(pid_t number) {
    const std::string stat = contentOf("/proc/" + std::to_string(number) + "/stat");
    std::istringstream words(stat.substr(std::min(stat.rfind(')') + 1, stat.size())));
    const std::vector<std::string> fields(std::istream_iterator<std::string>(words), {});
    if (fields.size() <= kStartTime) return std::to_string(number);
    if (fields[kState] == "Z" || fields[kState] == "X") return {};
    return std::to_string(number) + " " + fields[kStartTime] + " " +
           firstWordOf("/proc/sys/kernel/random/boot_id");
}

class PosixHost final : public Host {
  public:
    [[nodiscard]] std::string machine() const override {
        std::array<char, 256> name{};
        return ::gethostname(name.data(), name.size() - 1) == 0 ? name.data() : "?";
    }

    [[nodiscard]] std::string user() const override {
        const passwd* entry = ::getpwuid(::geteuid());
        return entry ? entry->pw_name : std::to_string(::geteuid());
    }

    [[nodiscard]] std::string process() const override { return nameOf(::getpid()); }

    [[nodiscard]] bool runs(const std::string& process) const override {
        pid_t number = 0;
        const char* end = process.data() + process.size();
        const auto [rest, fault] = std::from_chars(process.data(), end, number);
        if (fault != std::errc() || number <= 0) return true;
        if (::kill(number, 0) != 0 && errno == ESRCH) return false;
        const std::string now = nameOf(number);
        const bool onlyNumbers = rest == end || now == std::to_string(number);
        return onlyNumbers || now == process;
    }

    void pause(std::chrono::milliseconds duration) override {
        std::this_thread::sleep_for(duration);
    }
};

}  // namespace

std::unique_ptr<Host> systemHost() {
    return std::make_unique<PosixHost>();
}

}  // namespace winvrx
