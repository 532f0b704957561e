#include "platform/controls/Kopie.h"

#include <gtest/gtest.h>

namespace {

const char* const keineFormeln[] = {"-3,5",  "+2",  "-1.234,50 €", "- 5", "+12 %",
                                    "Linde", "1=2", "a@b.de",      "",    "-0,5"};
const char* const formeln[] = {"=1+1",      "@SUMME(A1)", "+A1",    "-A1+B2", "-",
                               "- keine -", "  =1+1",     "-1,2,3", "-1+2"};

}  // namespace

TEST(KopieTest, NurTexteDieWieFormelnBeginnenSindWelche) {
  for (const char* text : keineFormeln)
    EXPECT_FALSE(Kopie::wieFormel(QString::fromUtf8(text))) << text;
  for (const char* text : formeln) EXPECT_TRUE(Kopie::wieFormel(QString::fromUtf8(text))) << text;
}

TEST(KopieTest, EinTextDerWieEineFormelBeginntKommtAlsTextAn) {
  const auto inhalt = Kopie::ablage({{"=1+1", "-3,5", "<b>"}, {"Linde", "@A", ""}});
  EXPECT_EQ(inhalt->text(), QStringLiteral("'=1+1\t-3,5\t<b>\nLinde\t'@A\t"));
  EXPECT_TRUE(inhalt->html().contains("mso-number-format:'\\@'\" sdnum=\"1031;0;@\">=1+1</td>"));
  EXPECT_TRUE(inhalt->html().contains("<td>-3,5</td><td>&lt;b&gt;</td>"));
  EXPECT_EQ(inhalt->html().count("<tr>"), 2);
}

TEST(KopieTest, OhneSolcheTexteBleibtEsBeimText) {
  const auto inhalt = Kopie::ablage({{"Linde", "-3,5"}});
  EXPECT_EQ(inhalt->text(), QStringLiteral("Linde\t-3,5"));
  EXPECT_FALSE(inhalt->hasHtml());
}
