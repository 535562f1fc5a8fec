#include "tools/internet/web_ni.h"

#include "foundation/files/record_file.h"

#include <algorithm>

namespace winvrx {

namespace {

/// Writes the one line, or deletes the file.
void setMarker(const Store& store, std::string_view name, std::string_view line, bool present) {
    RecordFile marker(store, name);
    if (!present)
        (void)marker.remove();
    else if (marker.values() != std::vector{std::string(line)})
        marker.rewrite({std::string(line)});
}

}  // namespace

bool WebNi::load() {
    return attempt(at_, incorrectData(), [this] {
        const auto listed = at_.store().files.list(at_.session.folder.path());
        const auto find = [&](std::string_view name) {
            return std::ranges::find(listed, name, &ListedFile::name);
        };
        for (const WebSwitch which : kWebSwitches) {
            State& state = states_[static_cast<std::size_t>(which)];
            const auto marker = find(wordsOf(which).marker);
            state.blocked = marker != listed.end();
            state.since.reset();
            if (state.blocked) state.since = marker->written;
            state.places = browsers_.blockedIn(which);
        }
        keepsBlocked_ = find(kKeepBlockedMarker) != listed.end();
    });
}

bool WebNi::block(WebSwitch which) {
    if (!changeMarker(which, true)) return false;
    apply(which, true);
    return load();
}

bool WebNi::release(WebSwitch which) {
    const WebSwitchWords& words = wordsOf(which);
    if (!at_.person.agrees(riskyQuestion(words.releaseTitle, std::string(words.releaseQuestion))))
        return false;
    if (!changeMarker(which, false)) return false;
    apply(which, false);
    return load();
}

bool WebNi::changeMarker(WebSwitch which, bool blocked) {
    return attemptWriting(at_, incorrectData(), [&] {
        setMarker(at_.store(), wordsOf(which).marker, wordsOf(which).line, blocked);
    });
}

void WebNi::apply(WebSwitch which, bool blocked) {
    states_[static_cast<std::size_t>(which)].problems = browsers_.apply(which, blocked).problems;
}

bool WebNi::setKeepsBlocked(bool keeps) {
    return attemptWriting(
               at_, incorrectData(),
               [&] { setMarker(at_.store(), kKeepBlockedMarker, kKeepBlockedLine, keeps); }) &&
           load();
}

void WebNi::applyAgain() {
    if (!at_.files.exists(at_.session.folder.file(kKeepBlockedMarker)) || !load()) return;
    for (const WebSwitch which : kWebSwitches)
        if (state(which).blocked) apply(which, true);
}

void WebNi::openBrowser() {
    if (!browsers_.openBrowser()) at_.person.tell(failure("Erro", "Ocorreu Erro"));
}

}  // namespace winvrx
