#include <gtest/gtest.h>
#include <tuple>

#include "app/jobs/JobRequest.h"

namespace purrlodge {
namespace {

using Args = std::vector<std::string>;

TEST(JobArgumentsTest, OptionsStandAnywhereAndTakeTheirValueEitherWay)
{
    const ParsedArguments parsed =
        parseJobArguments({"account", "--verbose", "--number=1042", "--pdf", "out.pdf", "--data",
                           "/srv/cats", "--copy", "--client", "SmithAnn"});
    ASSERT_TRUE(parsed.request) << parsed.error;
    const JobRequest& r = *parsed.request;
    EXPECT_EQ(
        std::tie(r.kind, r.verbose, r.dataFolder, r.accountNumber, r.pdfFile, r.accountCopy,
                 r.clientCode),
        std::make_tuple(JobKind::Account, true, "/srv/cats", 1042, "out.pdf", true, "SmithAnn"));

    const ParsedArguments cats = parseJobArguments({"export", "addresses", "--style", "cats"});
    ASSERT_TRUE(cats.request);
    EXPECT_EQ(cats.request->labelStyle, LabelStyle::CatCareOf);
    EXPECT_EQ(parseJobArguments({"export", "emails"}).request->kind, JobKind::ExportEmails);
    EXPECT_EQ(parseJobArguments({"--data", "/d", "stats", "--from", "01/01/25", "--to", "31/01/25"})
                  .request->to,
              "31/01/25");
}

TEST(JobArgumentsTest, WhatCannotBeUnderstoodIsRefusedWithItsReason)
{
    const std::vector<std::pair<Args, std::string>> refused = {
        {{}, "no job given: backup, export, account, check or stats"},
        {{"tidy"}, "unknown job tidy (backup, export, account, check or stats)"},
        {{"export"}, "export needs what to export: addresses or emails"},
        {{"export", "phones"}, "export knows addresses and emails, not phones"},
        {{"check", "now"}, "unexpected now"},
        {{"check", "--to", "/x"}, "check does not take --to"},
        {{"export", "emails", "--style", "cats"}, "export emails does not take --style"},
        {{"export", "addresses", "--style", "fancy"}, "--style is plain or cats, not fancy"},
        {{"backup", "--to"}, "--to needs a value"},
        {{"backup", "--fast"}, "unknown option --fast"},
        {{"check", "--verbose=yes"}, "--verbose takes no value"},
        {{"account", "--number", "5"}, "account needs --number N and --pdf FILE"},
        {{"account", "--number", "0", "--pdf", "a.pdf"},
         "--number must be a whole number above 0, not 0"},
        {{"account", "--number", "12a", "--pdf", "a.pdf"},
         "--number must be a whole number above 0, not 12a"},
        {{"stats", "--from", "01/01/25"}, "stats needs --from DD/MM/YY and --to DD/MM/YY"},
    };
    for (const auto& [arguments, reason] : refused) {
        const ParsedArguments parsed = parseJobArguments(arguments);
        EXPECT_FALSE(parsed.request) << reason;
        EXPECT_EQ(parsed.error, reason);
    }
    EXPECT_TRUE(parseJobArguments({"account", "--number", "1", "--pdf", "a.pdf"}).request)
        << "1 is the lowest account number";
}

} // namespace
} // namespace purrlodge
