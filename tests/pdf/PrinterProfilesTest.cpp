#include "pdf/PrinterProfiles.h"

#include <gtest/gtest.h>

#include "tests/helpers/TemporaryFolder.h"

namespace {

class Profiles : public testing::Test
{
protected:
    const TemporaryFolder folder;
    QSettings settings{QString::fromStdString(folder.file("settings.ini")), QSettings::IniFormat};
    PrinterProfiles profiles{settings};
};

}  // namespace

TEST_F(Profiles, AreKeptByName)
{
    const PrinterSettings printer{1200, 2, true, 30};
    profiles.keep("Laser/B\xC3\xBCro 2", printer);
    settings.sync();
    QSettings later(settings.fileName(), QSettings::IniFormat);
    const auto found = PrinterProfiles(later).find("Laser/B\xC3\xBCro 2");
    ASSERT_TRUE(found);
    EXPECT_EQ(found->dpi, 1200);
    EXPECT_EQ(found->dotSize, 2);
    EXPECT_TRUE(found->noBlack);
    EXPECT_EQ(found->lighten, 30);
    EXPECT_FALSE(PrinterProfiles(later).find("Laser"));
}

TEST_F(Profiles, HaveTheirNames)
{
    EXPECT_TRUE(profiles.names().empty());
    profiles.keep("office", {600, 0, false, 0});
    profiles.keep("at home", {1200, 0, false, 0});
    EXPECT_EQ(profiles.names(), (std::vector<std::string>{"at home", "office"}));
    profiles.remove("office");
    EXPECT_EQ(profiles.names(), (std::vector<std::string>{"at home"}));
    EXPECT_FALSE(profiles.find("office"));
}
