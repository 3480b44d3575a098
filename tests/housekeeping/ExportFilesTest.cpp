#include <gtest/gtest.h>

#include "housekeeping/AddressFile.h"
#include "housekeeping/EmailFile.h"
#include "store/ClientFiles.h"
#include "store/DataFolder.h"
#include "store/IndexOperations.h"
#include "support/FakePorts.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

// Current clients in index order, saved as the index names them.
class ExportFilesTest : public ::testing::Test {
protected:
    ClientRecord& addClient(const char* code)
    {
        appendEntry(index, code, code);
        records.push_back({});
        ClientRecord& client = records.back();
        client.code.set(code);
        return client;
    }
    void save()
    {
        for (const ClientRecord& client : records)
            ASSERT_TRUE(writeClientRecord(folder, client.code.str(), client));
    }

    testing::TempFolder temp;
    testing::FakeUi ui;
    DataFolder folder{temp.path(), ui};
    ClientIndex index{};
    std::deque<ClientRecord> records;
};

TEST_F(ExportFilesTest, LabelsInBothStylesWithUnnamedCatsAndEmptyLinesLeftOut)
{
    ClientRecord& smith = addClient("SMITHANN");
    smith.style.set("Mrs");
    smith.firstName.set("Ann");
    smith.surname.set("Smith");
    smith.catName[0].set("Tom");
    smith.catName[1].set("-");
    smith.catName[2].set("Kit");
    smith.address[0].set("2 High St");
    smith.address[1].set(" , ");
    smith.address[3].set("Upton");
    // Bob's first cat has no name: his label is plain in either style.
    ClientRecord& lee = addClient("LEEBOB12");
    lee.style.set("Mr");
    lee.firstName.set("Bob");
    lee.surname.set("Lee");
    lee.catName[1].set("Sooty");
    lee.address[2].set("1 Low Rd");
    save();

    const ExportText plain = addressFileText(folder, index, LabelStyle::Plain);
    EXPECT_EQ(plain.text, "Mrs Ann Smith\n2 High St\nUpton\n\nMr Bob Lee\n1 Low Rd\n\n");
    EXPECT_EQ(plain.count, 2);
    const ExportText cats = addressFileText(folder, index, LabelStyle::CatCareOf);
    EXPECT_EQ(cats.text,
              "Tom, Kit\nc\\o Mrs Ann Smith\n2 High St\nUpton\n\nMr Bob Lee\n1 Low Rd\n\n");
    EXPECT_EQ(addressesFiledText(2, "/data/Clientlist.txt"),
              "2 names and addresses printed to file:\n/data/Clientlist.txt");
}

TEST_F(ExportFilesTest, ClientsWhoseRecordCannotBeReadAreLeftOutNotFilledFromTheOneBefore)
{
    addClient("SMITHANN").email.set("ann@example.com");
    addClient("GONEAWAY"); // in the index, no record file
    addClient("JONESTOM").email.set("tom@example.com");
    save();
    ASSERT_TRUE(folder.remove("GONEAWAY.DAT"));
    appendEntry(index, "Dots", ".."); // never a file name

    const ExportText emails = emailFileText(folder, index);
    EXPECT_EQ(emails.text, "ann@example.com,\ntom@example.com,\n");
    EXPECT_EQ(emails.count, 2);
    EXPECT_EQ(addressFileText(folder, index, LabelStyle::Plain).count, 2);
}

TEST_F(ExportFilesTest, EmailsWithoutLettersOrSpeltNotKnownAreLeftOut)
{
    addClient("A").email.set("Not Known");
    addClient("B").email.set("not known");
    addClient("C").email.set(" - ");
    addClient("D").email.set("Not Known ");
    save();
    const ExportText emails = emailFileText(folder, index);
    EXPECT_EQ(emails.text, "not known,\nNot Known ,\n");
    EXPECT_EQ(emails.count, 2);
    EXPECT_EQ(emailsFiledText(2, "/data/ClientEmails.txt"),
              "2 email addresses printed to file:\n/data/ClientEmails.txt");
}

} // namespace
} // namespace purrlodge
