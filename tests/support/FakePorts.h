#pragma once

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <deque>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "app/Ports.h"
#include "store/CivilCalendar.h"
#include "store/TextHelpers.h"

namespace purrlodge::testing {

// Records every message shown, in order, and answers each dialog from a
// script; an unscripted dialog is cancelled (or answered No).
class FakeUi : public Ui {
public:
    void showMessage(const Message& message) override { messages.push_back(message); }

    std::optional<std::string> askDirectorySetup(const std::string& suggestion) override
    {
        directorySetupSuggestions.push_back(suggestion);
        return take(directorySetupAnswers, std::optional<std::string>());
    }
    bool askDirectoryCheck() override
    {
        ++directoryChecksAsked;
        return take(directoryCheckAnswers, false);
    }
    bool askNewDirectory(const std::string& folder) override
    {
        newDirectoriesAsked.push_back(folder);
        return take(newDirectoryAnswers, false);
    }
    std::optional<FormVerdict> runEstablishmentDetails(
        const EstablishmentForm& initial, const std::string& dataFolder,
        const std::function<FormVerdict(const EstablishmentForm&)>& accept) override
    {
        establishmentDialogs.push_back({initial, dataFolder});
        while (!establishmentEntries.empty()) {
            const EstablishmentForm form = establishmentEntries.front();
            establishmentEntries.pop_front();
            const FormVerdict verdict = accept(form);
            if (verdict != FormVerdict::StayOpen)
                return verdict;
        }
        return std::nullopt;
    }

    // Titles of the messages shown, in order.
    [[nodiscard]] std::vector<std::string> titles() const
    {
        std::vector<std::string> result;
        for (const auto& message : messages)
            result.push_back(message.title);
        return result;
    }

    std::vector<Message> messages;

    std::deque<std::optional<std::string>> directorySetupAnswers;
    std::vector<std::string> directorySetupSuggestions;
    std::deque<bool> directoryCheckAnswers;
    int directoryChecksAsked = 0;
    std::deque<bool> newDirectoryAnswers;
    std::vector<std::string> newDirectoriesAsked;
    // Entries typed into the Establishment Details dialog, one per OK press.
    std::deque<EstablishmentForm> establishmentEntries;
    std::vector<std::pair<EstablishmentForm, std::string>> establishmentDialogs;

private:
    template <class T> static T take(std::deque<T>& answers, T otherwise)
    {
        if (answers.empty())
            return otherwise;
        T answer = answers.front();
        answers.pop_front();
        return answer;
    }
};

// A clock standing still at a settable moment; its local time is UTC.
class FakeClock : public Clock {
public:
    explicit FakeClock(std::int64_t start = 0) : nowSeconds(start) {}

    [[nodiscard]] std::int64_t now() const override { return nowSeconds; }
    [[nodiscard]] CivilTime toLocal(std::int64_t t) const override { return civilFromSeconds(t); }

    // Sets the clock to a UTC calendar moment.
    void setUtc(int year, int month, int day, int hour = 12, int minute = 0, int second = 0)
    {
        nowSeconds = daysFromCivil(year, month, day) * 86400 + hour * 3600 + minute * 60 + second;
    }

    std::int64_t nowSeconds;
};

// Hands out a scripted sequence of values, then repeats the last one; records
// every seed it was given.
class FakeRandom : public Random {
public:
    explicit FakeRandom(std::vector<std::uint32_t> script = {0})
        : values(script.begin(), script.end())
    {}

    void seed(std::uint32_t seed) override { seeds.push_back(seed); }
    std::uint32_t next() override
    {
        if (values.empty())
            return 0;
        const std::uint32_t value = values.front();
        if (values.size() > 1)
            values.pop_front();
        return value;
    }

    std::deque<std::uint32_t> values;
    std::vector<std::uint32_t> seeds;
};

// Settings held in memory; keys compare without regard to case.
class FakeProfile : public Profile {
public:
    [[nodiscard]] std::string read(std::string_view key) const override
    {
        const auto found = values.find(toLower(key));
        return found == values.end() ? std::string() : found->second;
    }
    void write(std::string_view key, std::string_view value) override
    {
        values[toLower(key)] = std::string(value);
        writes.emplace_back(std::string(key), std::string(value));
    }

    std::map<std::string, std::string> values;
    std::vector<std::pair<std::string, std::string>> writes;
};

class FakeDrives : public Drives {
public:
    [[nodiscard]] std::optional<std::string> rootOf(char letter) const override
    {
        const auto found =
            roots.find(static_cast<char>(std::toupper(static_cast<unsigned char>(letter))));
        return found == roots.end() ? std::nullopt : std::optional<std::string>(found->second);
    }
    [[nodiscard]] std::optional<std::uint64_t> freeBytes(const std::string&) const override
    {
        return free;
    }

    std::map<char, std::string> roots;
    std::optional<std::uint64_t> free = 1'440'000;
};

class FakePrinter : public Printer {
public:
    [[nodiscard]] bool hasPrinter() const override { return installed; }

    bool installed = false;
};

// One of each fake, wired into a Ports bundle.
struct FakePorts {
    FakeUi ui;
    FakeClock clock;
    FakeRandom random;
    FakeProfile profile;
    FakeDrives drives;
    FakePrinter printer;

    Ports ports() { return Ports{ui, clock, random, profile, drives, printer}; }
};

} // namespace purrlodge::testing
