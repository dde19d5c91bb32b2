#pragma once

#include "common/result.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <vector>

// The camera IDs typed for boot boost: parts separated by ";", each one ID or
// a range "first-last". An ID outside 1 to 254 is reported; a range that is
// not valid is skipped without a word, as the drivers' other tools do.
class BootBoostIdList final
{
public:
    static constexpr unsigned lowest = 1;
    static constexpr unsigned highest = 254;

    struct Step
    {
        enum class Kind { Id, OutOfRange, NotANumber };
        Kind kind;
        unsigned id;  // Kind::Id
        QString text; // the part as typed, trimmed
    };
    using Refusal = std::function<void(const Step&)>;

    // The steps in the order of the text; ranges in increasing order.
    static std::vector<Step> parse(const QString& text);

    // Sends every ID of the steps with the add or remove command, hands each
    // refused part to refused in turn, and gives the last driver failure (with
    // every ID that failed) or success.
    static Result apply(const std::vector<Step>& steps, bool add, const Refusal& refused);

    // Sorted, without duplicates, runs joined: "1 - 3, 5".
    static QString displayText(std::vector<std::uint8_t> ids);
};
