#include "clients/GlobalSearch.h"

#include "clients/AutoMemo.h"
#include "store/ClientFields.h"
#include "store/ClientFiles.h"
#include "store/ClientRecord.h"
#include "store/DataFolder.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

// Compares fields against the search text in the chosen case mode; the text is
// turned to upper case once, each field as it is compared.
class FieldMatcher {
public:
    explicit FieldMatcher(const GlobalSearchRequest& request)
        : caseSpecific_(request.caseSpecific),
          text_(request.caseSpecific ? request.text : toUpper(request.text))
    {}

    [[nodiscard]] bool matches(std::string_view field) const
    {
        return caseSpecific_ ? contains(field, text_) : contains(toUpper(field), text_);
    }

    // The telephone and mobile are never upper-cased, even when the text is.
    [[nodiscard]] bool matchesAsStored(std::string_view field) const
    {
        return contains(field, text_);
    }

private:
    bool caseSpecific_;
    std::string text_;
};

// Collects the lines of one client.
class ClientLines {
public:
    ClientLines(const ClientRecord& client, int position, std::string code,
                std::vector<std::string>& lines)
        : surname_(client.surname.str()), firstName_(client.firstName.str()),
          position_(std::to_string(position)), code_(std::move(code)), lines_(lines)
    {}

    // " %s\t%s\t%s\t(%s)\t\t%d \t%s"
    void add(std::string_view field, std::string_view tag)
    {
        std::string line = ' ' + surname_ + '\t' + firstName_ + '\t';
        line += field;
        line += "\t(";
        line += tag;
        line += ")\t\t" + position_ + " \t" + code_;
        lines_.push_back(std::move(line));
    }

    // " %s\t%s\t%s  (%s) \t\t%s": the colour line has no tag and no number,
    // and lists every slot's name, each followed by a comma.
    void addColour(std::string_view colour, const ClientRecord& client)
    {
        std::string line = ' ' + surname_ + '\t' + firstName_ + '\t';
        line += colour;
        line += "  (";
        for (const auto& name : client.catName)
            line += name.str() + ',';
        line += ") \t\t" + code_;
        lines_.push_back(std::move(line));
    }

private:
    std::string surname_;
    std::string firstName_;
    std::string position_;
    std::string code_;
    std::vector<std::string>& lines_;
};

void searchClient(const DataFolder& folder, const ClientRecord& client, const std::string& code,
                  const GlobalSearchGroups& groups, const FieldMatcher& matcher, ClientLines& out)
{
    auto test = [&](std::string_view field, std::string_view tag) {
        if (matcher.matches(field))
            out.add(field, tag);
    };

    if (groups.address) {
        for (const auto& line : client.address)
            test(line.str(), "ADDRESS");
    }
    if (groups.telMobile) {
        const std::string telephone = client.telephone.str();
        if (matcher.matchesAsStored(telephone))
            out.add(telephone, "TEL");
        const std::string mobile = mobileNumberOf(client);
        if (matcher.matchesAsStored(mobile))
            out.add(mobile, "Mob");
    }
    if (groups.vet)
        test(client.vet.str(), "VET");
    if (groups.style)
        test(client.style.str(), "STYLE");
    if (groups.surname)
        test(client.surname.str(), "SURNAME");
    if (groups.firstName)
        test(client.firstName.str(), "FIRST NAME");
    if (groups.catName) {
        for (const auto& name : client.catName)
            test(name.str(), "CAT-NAME");
    }
    if (groups.catColour) {
        for (const auto& colour : client.catColour) {
            if (matcher.matches(colour.str()))
                out.addColour(colour.str(), client);
        }
    }
    if (groups.catBreed) {
        for (const auto& breed : client.catBreed)
            test(breed.str(), "CAT-BREED");
    }
    if (groups.notesAutoMemo) {
        for (const auto& note : client.notes)
            test(note.str(), "NOTES");
        // A memo that cannot be opened counts as absent. Its line carries the
        // e-mail text in the field column, as it always has.
        AutoMemo memo;
        if (folder.read(clientFileName(code, extension::autoMemo), memo) &&
            matcher.matches(memo.text.str()))
            out.add(client.email.str(), "AUTO-NOTES");
    }
    if (groups.favouriteFood) {
        for (const auto& foods : client.favouriteFoods) {
            for (const auto& food : foods)
                test(food.str(), "FAV-FOOD");
        }
    }
    if (groups.forbiddenFood) {
        for (const auto& foods : client.forbiddenFoods) {
            for (const auto& food : foods)
                test(food.str(), "FORBID-FOOD");
        }
    }
    // The e-mail group has never had a tag of its own.
    if (groups.email)
        test(client.email.str(), "FORBID-FOOD");
}

} // namespace

GlobalSearchGroups GlobalSearchGroups::all()
{
    GlobalSearchGroups groups;
    for (bool* group :
         {&groups.surname, &groups.firstName, &groups.style, &groups.address, &groups.telMobile,
          &groups.vet, &groups.catName, &groups.catBreed, &groups.catColour, &groups.notesAutoMemo,
          &groups.favouriteFood, &groups.forbiddenFood, &groups.email})
        *group = true;
    return groups;
}

bool GlobalSearchGroups::any() const
{
    return surname || firstName || style || address || telMobile || vet || catName || catBreed ||
           catColour || notesAutoMemo || favouriteFood || forbiddenFood || email;
}

GlobalSearchResult globalSearch(const DataFolder& folder, const ClientIndex& index,
                                const GlobalSearchRequest& request)
{
    GlobalSearchResult result;
    if (request.groups.any()) {
        const FieldMatcher matcher(request);
        ClientRecord client;
        for (int position = 1; position <= index.usedCount(); ++position) {
            const std::string code = index.entries[position].code.str();
            readClientRecord(folder, code, client);
            ClientLines out(client, position, code, result.lines);
            searchClient(folder, client, code, request.groups, matcher, out);
        }
    }

    result.showDetails = !result.lines.empty();
    if (!result.showDetails) {
        result.lines.assign(10, std::string());
        result.lines.emplace_back(globalSearchNoMatch);
    }
    return result;
}

std::string codeOfResultLine(std::string_view line)
{
    return textAfterLast(line, "\t");
}

} // namespace purrlodge
