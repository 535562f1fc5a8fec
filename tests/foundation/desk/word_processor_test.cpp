#include "tests/support/recording_word_processor.h"
#include "tests/support/test_workplace.h"

#include <gtest/gtest.h>

namespace winvrx::testing {
namespace {

TEST(WordProcessor, ACommandSaysThatItIsMissing) {
    TestWorkplace desk;
    RecordingWordProcessor processor;
    const auto print = [&] {
        return attempt(desk.at, documentNotPrinted(), [&] {
            processor.print({"Recibo", {Paragraph{"RECIBO DE PAGAMENTO"}}}, "");
            return true;
        });
    };
    EXPECT_TRUE(print());
    processor.installed = false;
    EXPECT_FALSE(print());
    EXPECT_EQ(processor.printed.size(), 1U);
    ASSERT_EQ(desk.person.shown.size(), 1U);
    EXPECT_EQ(desk.person.shown[0].text,
              "Não foi possível Imprimir! O Microsoft Word pode não estar Instalado neste PC.");
    EXPECT_EQ(desk.person.shown[0].detail, "O LibreOffice Writer não está instalado.");
}

}  // namespace
}  // namespace winvrx::testing
