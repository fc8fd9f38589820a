#include "document/RecoveryCopy.h"

#include <gtest/gtest.h>

#include "oid/OpenProject.h"
#include "tests/helpers/TemporaryFolder.h"

namespace {

Oid::OidProject zoo()
{
    Oid::OidProject project;
    project.productName = "Zoo";
    project.productId = 905;
    project.pictures.resize(2);  // the second one without areas
    Oid::POLY& cow = project.pictures[0].polys.emplace_back();
    cow.name = "cow";
    cow.points = {{1, 2}, {3, 4}, {5, 6}};
    project.oids["cow"] = {1001, 0};
    project.compiler.source = "sub cow\r\nx = 7 %% 2\r\nend sub\r\n";
    return project;
}

RecoveryHead headOf(const std::string& path)
{
    RecoveryHead head;
    head.projectPath = path;
    head.since = QDateTime::fromString("2024-05-12T14:03:07.250Z", Qt::ISODateWithMs);
    return head;
}

}  // namespace

TEST(RecoveryCopy, HoldsTheProjectFileBehindItsHead)
{
    const std::string copy = recoveryCopy(zoo(), headOf("/home/ann/zoo.oidpro")).toStdString();
    const size_t firstLineEnd = copy.find("\r\n");
    EXPECT_EQ(copy.substr(0, 27), "\xEF\xBB\xBF# Plinkett recovery copy");
    EXPECT_EQ(copy.substr(firstLineEnd + 2),
              "# project /home/ann/zoo.oidpro\r\n"
              "# name Zoo\r\n"
              "# pages 2\r\n"
              "# since 2024-05-12T14:03:07.250Z\r\n"
              "# saved " +
                  hashOfSaved(zoo()).toStdString() +
                  "\r\n"
                  "PRODUCT 905, \"Zoo\"\r\n"
                  "IMAGE\r\nPAPER 297.0 210.0\r\nDPI   1200\r\n"
                  "OID 1001\r\nPOLY cow\r\n"
                  "        1.00     2.00\r\n        3.00     4.00\r\n        5.00     6.00\r\n"
                  "END\r\n\r\n"
                  "# BOX    name x y w h\r\n# CIRCLE name xm ym R\r\n"
                  "IMAGE\r\nPAPER 297.0 210.0\r\nDPI   1200\r\n"
                  "# BOX    name x y w h\r\n# CIRCLE name xm ym R\r\n"
                  "SCRIPT # -----------------------\r\n"
                  "sub cow\r\nx = 7 %% 2\r\nend sub\r\n");
}

TEST(RecoveryCopy, OpensAsTheProjectThatItIsOf)
{
    const TemporaryFolder folder;
    const std::string longPath = "/" + std::string(3000, 'x') + "/SCRIPT END POLY #.oidpro";
    writeFile(folder.file("copy.oidpro"), recoveryCopy(zoo(), headOf(longPath)).toStdString());
    Oid::OidProject opened;
    ASSERT_TRUE(Oid::openProject(opened, folder.file("copy.oidpro")));
    EXPECT_EQ(opened.compiler.source, zoo().compiler.source);
    EXPECT_EQ(opened.pictures.size(), 2U);
    EXPECT_EQ(hashOfSaved(opened), hashOfSaved(zoo()));
}

TEST(RecoveryCopy, ItsHeadComesBackToTheLetter)
{
    const std::string path = "/home/\xC3\xA4nne/100%/a b\n" + std::string(2000, '#') + "\\z.oidpro";
    Oid::OidProject project = zoo();
    project.productName = "\"K\xC3\xBCken\" # 100 %\r\n\\";
    const auto head = readRecoveryHead(recoveryCopy(project, headOf(path)));
    ASSERT_TRUE(head);
    EXPECT_EQ(head->projectPath, path);
    EXPECT_EQ(head->productName, project.productName);
    EXPECT_EQ(head->pages, 2);
    EXPECT_EQ(head->since, headOf("").since);
    EXPECT_EQ(head->savedHash, hashOfSaved(project));
}

TEST(RecoveryCopy, WorkWithoutAFileHasNoPath)
{
    const auto head = readRecoveryHead(recoveryCopy(zoo(), headOf("")));
    ASSERT_TRUE(head);
    EXPECT_EQ(head->projectPath, "");
}

TEST(RecoveryCopy, AnyByteThatIsWrongOrMissingIsSeen)
{
    const QByteArray copy = recoveryCopy(zoo(), headOf("/home/ann/zoo.oidpro"));
    ASSERT_TRUE(readRecoveryHead(copy));
    for (int i = 0; i < copy.size(); ++i) {
        QByteArray damaged = copy;
        damaged[i] = static_cast<char>(damaged[i] ^ 1);
        EXPECT_FALSE(readRecoveryHead(damaged)) << "byte " << i;
        EXPECT_FALSE(readRecoveryHead(copy.left(i))) << "cut at " << i;
    }
    EXPECT_FALSE(readRecoveryHead(copy + '\n'));
}

TEST(RecoveryCopy, ItsHashIsThatOfTheSavedFile)
{
    const TemporaryFolder folder;
    Oid::OidProject project = zoo();
    ASSERT_TRUE(project.save(folder.file("zoo.oidpro")));
    const QByteArray saved = QByteArray::fromStdString(readFile(folder.file("zoo.oidpro")));
    EXPECT_EQ(hashOfSavedFile(saved), hashOfSaved(project));
    EXPECT_NE(hashOfSavedFile(saved + " "), hashOfSaved(project));
}

TEST(RecoveryCopy, SaysWhichPagesWereMoved)
{
    RecoveryHead head = headOf("/home/ann/zoo.oidpro");
    EXPECT_TRUE(readRecoveryHead(recoveryCopy(zoo(), head))->moved.empty());
    head.moved.saved = 1000;
    for (int page = 999; page >= 0; --page) {
        head.moved.pictures.push_back(page);
    }
    const auto read = readRecoveryHead(recoveryCopy(zoo(), head, "of the file"));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->moved.saved, 1000);
    EXPECT_EQ(read->moved.pictures, head.moved.pictures);
    EXPECT_EQ(read->movedFrom, "of the file");
}

TEST(RecoveryCopy, PagesThatLookAlikeAndWereMovedAreUnsavedWork)
{
    RecoveryHead head = headOf("/home/ann/zoo.oidpro");
    EXPECT_TRUE(recoveryCopy(zoo(), head, hashOfSaved(zoo())).isEmpty());
    head.moved = {2, {1, 0}};
    EXPECT_FALSE(recoveryCopy(zoo(), head, hashOfSaved(zoo())).isEmpty());
}
