#pragma once

#include <cctype>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "ports/Canvas.h"
#include "ports/Ports.h"
#include "store/CivilCalendar.h"
#include "store/TextHelpers.h"

namespace purrlodge::testing {

// Records every message shown, in order.
struct FakeUi : Ui {
    void showMessage(const Message& message) override { messages.push_back(message); }

    // Titles of the messages shown, in order.
    [[nodiscard]] std::vector<std::string> titles() const
    {
        std::vector<std::string> result;
        for (const auto& message : messages)
            result.push_back(message.title);
        return result;
    }

    std::vector<Message> messages;
};

// A clock standing still at a settable moment; its local time is UTC.
struct FakeClock : Clock {
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
struct FakeRandom : Random {
    explicit FakeRandom(std::deque<std::uint32_t> script = {0}) : values(std::move(script)) {}

    void seed(std::uint32_t seed) override { seeds.push_back(seed); }
    std::uint32_t next() override
    {
        const std::uint32_t value = values.empty() ? 0 : values.front();
        if (values.size() > 1)
            values.pop_front();
        return value;
    }

    std::deque<std::uint32_t> values;
    std::vector<std::uint32_t> seeds;
};

// Settings held in memory; keys compare without regard to case.
struct FakeProfile : Profile {
    [[nodiscard]] std::string read(std::string_view key) const override
    {
        const auto found = values.find(toLower(key));
        return found == values.end() ? std::string() : found->second;
    }
    bool write(std::string_view key, std::string_view value) override
    {
        if (failWrites)
            return false;
        values[toLower(key)] = std::string(value);
        writes.emplace_back(std::string(key), std::string(value));
        return true;
    }

    [[nodiscard]] std::optional<std::string> unreadable() const override
    {
        return unreadableReason;
    }

    bool failWrites = false; // every write fails, as on a read-only settings file
    std::optional<std::string> unreadableReason; // set: the file cannot be read
    std::map<std::string, std::string> values;
    std::vector<std::pair<std::string, std::string>> writes;
};

// Drive letters mapped to folders by the test; free space is scripted, one
// reading per call, the last reading repeating.
struct FakeDrives : Drives {
    [[nodiscard]] std::optional<std::string> rootOf(char letter) const override
    {
        const auto found = roots.find(static_cast<char>(std::toupper(letter)));
        return found == roots.end() ? std::nullopt : std::optional<std::string>(found->second);
    }
    [[nodiscard]] std::optional<std::uint64_t> freeBytes(const std::string&) const override
    {
        if (freeReadings.empty())
            return freeSpace;
        freeSpace = freeReadings.front();
        freeReadings.pop_front();
        return freeSpace;
    }
    [[nodiscard]] bool isOwnMount(const std::string&) const override { return ownMount; }

    std::map<char, std::string> roots;
    mutable std::deque<std::optional<std::uint64_t>> freeReadings;
    mutable std::optional<std::uint64_t> freeSpace;
    bool ownMount = true;
};

// A printer that records every job and answers from a script (Printed once
// the script is used up).
struct FakePrinter : Printer {
    struct Job {
        std::string title;
        bool prompt = false;

        friend bool operator==(const Job&, const Job&) = default;
    };

    [[nodiscard]] bool hasPrinter() const override { return false; }
    PrintOutcome printPage(const std::string& title, bool prompt,
                           const std::function<void(Canvas&)>&) override
    {
        jobs.push_back({title, prompt});
        const PrintOutcome outcome = outcomes.empty() ? PrintOutcome::Printed : outcomes.front();
        if (!outcomes.empty())
            outcomes.pop_front();
        return outcome;
    }
    [[nodiscard]] std::vector<std::string> takeSavedFiles() override
    {
        return std::exchange(savedFiles, {});
    }
    void setUp() override {}

    std::vector<Job> jobs;
    std::deque<PrintOutcome> outcomes;
    std::vector<std::string> savedFiles;
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
