#include "tools/internet/web_ni.h"

#include "tests/support/test_workplace.h"
#include "tools/internet/browser_policies.h"
#include "tools/internet/registry_values.h"

#include <gmock/gmock.h>

#include <map>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// Keeps what was applied, with the marker as it stood at that moment.
struct RecordedBrowsers final : BrowserSettings {
    testing::MemoryFiles& files;
    std::vector<std::string> applied;
    std::map<WebSwitch, std::vector<std::string>> places;

    explicit RecordedBrowsers(testing::MemoryFiles& on) : files(on) {}

    Outcome apply(WebSwitch which, bool blocked) override {
        const std::string marker = "/data/" + std::string(wordsOf(which).marker);
        applied.push_back(std::string(wordsOf(which).key) + (blocked ? " on" : " off") +
                          (files.content.contains(marker) ? " marked" : ""));
        places[which] = blocked ? std::vector<std::string>{"Chromium"} : std::vector<std::string>{};
        return {places[which], {}};
    }
    [[nodiscard]] std::vector<std::string> blockedIn(WebSwitch which) const override {
        const auto found = places.find(which);
        return found == places.end() ? std::vector<std::string>{} : found->second;
    }
    [[nodiscard]] bool openBrowser() override { return false; }
};

struct WebNiTest : ::testing::Test {
    testing::TestWorkplace desk;
    RecordedBrowsers browsers{desk.files};
    WebNi screen{desk.at, browsers};
};

TEST_F(WebNiTest, EachSwitchHasItsMarkerItsLineAndItsQuestion) {
    struct Case {
        WebSwitch which;
        std::string marker, line, title, question;
    };
    for (const Case& one :
         {Case{WebSwitch::Internet, "Wblc.pdx", "System WbLc\r\n", "Desativando a Internet",
               "Confirma Liberar a Internet?"},
          Case{WebSwitch::Videos, "Wilc.pdx", "System WiLc\r\n", "Desativando Videos da Internet",
               "Confirma Liberar Vídeos da Internet?"},
          Case{WebSwitch::Images, "Wmlc.pdx", "System WmLc\r\n", "Desativando Imagens da Internet",
               "Confirma Liberar Imagens da Internet?"}}) {
        browsers.applied.clear();
        const std::string key(wordsOf(one.which).key);
        EXPECT_TRUE(screen.block(one.which) && screen.block(one.which));
        EXPECT_EQ(desk.file(one.marker), one.line);
        EXPECT_TRUE(screen.state(one.which).blocked);
        EXPECT_THAT(screen.state(one.which).places, ElementsAre("Chromium"));
        desk.person.answers = {Answer::No};
        EXPECT_FALSE(screen.release(one.which));
        EXPECT_EQ(desk.file(one.marker), one.line) << "refused";
        desk.person.answers = {Answer::Yes};
        EXPECT_TRUE(screen.release(one.which));
        EXPECT_FALSE(desk.files.content.contains("/data/" + one.marker));
        desk.person.answers = {Answer::Yes};
        EXPECT_TRUE(screen.release(one.which)) << "with the marker missing";
        EXPECT_THAT(browsers.applied, ElementsAre(key + " on marked", key + " on marked",
                                                  key + " off", key + " off"));
        EXPECT_EQ(desk.person.shown.back().title, one.title);
        EXPECT_EQ(desk.person.shown.back().text, one.question);
    }
}

TEST_F(WebNiTest, MarkerThatCannotBeChangedLeavesTheBrowsersAlone) {
    desk.files.failWritesOn.insert("Wblc.pdx");
    EXPECT_FALSE(screen.block(WebSwitch::Internet));
    EXPECT_THAT(browsers.applied, IsEmpty());
    EXPECT_FALSE(screen.state(WebSwitch::Internet).blocked);
}

TEST_F(WebNiTest, TickedBoxAppliesWhatIsMarkedAtTheNextStart) {
    ASSERT_TRUE(screen.block(WebSwitch::Videos));
    ASSERT_TRUE(screen.setKeepsBlocked(true));
    EXPECT_EQ(desk.file("Wbse.pdx"), "System WbLc\r\n");
    browsers.applied.clear();
    WebNi(desk.at, browsers).applyAgain();
    EXPECT_THAT(browsers.applied, ElementsAre("videos on marked"));
    ASSERT_TRUE(screen.setKeepsBlocked(false));
    EXPECT_FALSE(desk.files.content.contains("/data/Wbse.pdx"));
    WebNi(desk.at, browsers).applyAgain();
    EXPECT_EQ(browsers.applied.size(), 1U);
}

TEST(RegistryValues, AreThoseThatTheBrowserReads) {
    const auto told = [](WebSwitch which, bool blocked) {
        std::vector<std::string> lines;
        for (const RegistryValue& value : registryValues(which, blocked)) {
            const auto* number = std::get_if<std::uint32_t>(&value.value);
            lines.push_back(
                (value.hive == RegistryValue::Hive::CurrentUser ? "HKCU " : "HKLM ") +
                std::string(value.key) + " " + std::string(value.name) + "=" +
                (number ? std::to_string(*number)
                        : "'" + std::string(std::get<std::string_view>(value.value)) + "'"));
        }
        return lines;
    };
    const std::string proxy =
        R"(HKCU Software\Microsoft\Windows\CurrentVersion\Internet Settings Proxy)";
    const std::string video =
        R"(HKLM SOFTWARE\Microsoft\Internet Explorer\ActiveX Compatibility\{D27CDB6E-AE6D-11CF-96B8-444553540000} Compatibility Flags=)";
    const std::string image =
        R"(HKCU Software\Microsoft\Internet Explorer\Main Display Inline Images=)";
    EXPECT_THAT(told(WebSwitch::Internet, true),
                ElementsAre(proxy + "Enable=1", proxy + "Server='27.0.0.1: 5555'"));
    EXPECT_THAT(told(WebSwitch::Internet, false),
                ElementsAre(proxy + "Enable=0", proxy + "Server=''"));
    EXPECT_THAT(told(WebSwitch::Videos, true), ElementsAre(video + "1024"));
    EXPECT_THAT(told(WebSwitch::Videos, false), ElementsAre(video + "0"));
    EXPECT_THAT(told(WebSwitch::Images, true), ElementsAre(image + "'no'"));
    EXPECT_THAT(told(WebSwitch::Images, false), ElementsAre(image + "'yes'"));
}

TEST(BrowserPolicies, AreFilesOfOurOwnAndGoWithoutATrace) {
    testing::MemoryFiles files;
    files.content = {
        {"/usr/bin/chromium", ""},
        {"/usr/bin/firefox-esr", ""},
        {"/etc/chromium/policies/managed/office.json", "{\"DefaultImagesSetting\": 1}"},
        {"/etc/firefox-esr/firefox-esr.js", "// the distribution's"}};
    const auto before = files.content;
    for (const WebSwitch which : {WebSwitch::Videos, WebSwitch::Images}) {
        for (int time = 0; time < 2; ++time)
            EXPECT_THAT(applyPolicy(files, "/", which, true),
                        ElementsAre("Chromium", "Firefox ESR"));
        EXPECT_THAT(browsersWithPolicy(files, "/", which), ElementsAre("Chromium", "Firefox ESR"));
    }
    EXPECT_EQ(files.content.size(), before.size() + 4);
    EXPECT_EQ(files.content.at("/etc/chromium/policies/managed/winvrx-images.json"),
              "{\"DefaultImagesSetting\": 2}\n");
    EXPECT_THAT(files.content.at("/etc/firefox-esr/winvrx-videos.js"),
                ::testing::HasSubstr("media.autoplay.default"));
    // A browser that has gone meanwhile leaves no rule behind.
    files.content.erase("/usr/bin/chromium");
    for (const WebSwitch which : kWebSwitches)
        (void)applyPolicy(files, "/", which, false);
    files.content["/usr/bin/chromium"] = "";
    EXPECT_EQ(files.content, before);
    EXPECT_THAT(applyPolicy(files, "/", WebSwitch::Internet, true), IsEmpty());
}

}  // namespace
}  // namespace winvrx
