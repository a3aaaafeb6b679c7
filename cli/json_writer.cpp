// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/json_writer.h"

#include "data/utf8.h"

#include <nlohmann/json.hpp>

namespace lettriner::cli {

std::string jsonString(std::u16string_view text) {
    // Our UTF-8 is always valid; replacing is the safe answer should it not be.
    return nlohmann::json(toUtf8(text))
        .dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

void JsonWriter::separate() {
    if (levels_.empty())
        return;
    Level& level = levels_.back();
    sink_.write(level.any ? ",\n" : "\n");
    level.any = true;
    sink_.write(std::string(2 * levels_.size(), ' '));
}

void JsonWriter::beforeValue() {
    if (afterKey_)
        afterKey_ = false;
    else
        separate();
}

void JsonWriter::key(std::string_view name) {
    separate();
    sink_.write("\"");
    sink_.write(name);
    sink_.write("\": ");
    afterKey_ = true;
}

void JsonWriter::open(char bracket, bool object) {
    beforeValue();
    sink_.write(std::string_view(&bracket, 1));
    levels_.push_back({object});
}

void JsonWriter::close(char bracket) {
    const bool any = levels_.back().any;
    levels_.pop_back();
    if (any) {
        sink_.write("\n");
        sink_.write(std::string(2 * levels_.size(), ' '));
    }
    sink_.write(std::string_view(&bracket, 1));
}

void JsonWriter::value(std::u16string_view text) {
    beforeValue();
    sink_.write(jsonString(text));
}

void JsonWriter::value(std::int64_t number) {
    beforeValue();
    sink_.write(std::to_string(number));
}

void JsonWriter::value(std::uint64_t number) {
    beforeValue();
    sink_.write(std::to_string(number));
}

void JsonWriter::value(bool truth) {
    beforeValue();
    sink_.write(truth ? "true" : "false");
}

} // namespace lettriner::cli
