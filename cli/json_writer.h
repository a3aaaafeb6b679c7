// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// JSON written as it goes, laid out as nlohmann::json lays out a document
// dumped with an indent of 2: one member or element a line, empty
// containers as {} and [], strings escaped by the library itself.

#include "cli/output_sink.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lettriner::cli {

// A JSON string literal of `text`, quoted and escaped; unpaired surrogates
// become U+FFFD.
[[nodiscard]] std::string jsonString(std::u16string_view text);

class JsonWriter {
public:
    explicit JsonWriter(OutputSink& sink) : sink_(sink) {}

    void beginObject() { open('{', true); }
    void endObject() { close('}'); }
    void beginArray() { open('[', false); }
    void endArray() { close(']'); }
    // Inside an object: the name of the member whose value comes next.
    void key(std::string_view name);
    void value(std::u16string_view text);
    void value(std::int64_t number);
    void value(std::uint64_t number);
    void value(bool truth);
    // After the outermost container: the closing line end.
    void finish() { sink_.write("\n"); }

private:
    struct Level {
        bool object;
        bool any = false; // a member or element written
    };
    void open(char bracket, bool object);
    void close(char bracket);
    // The separator and indent before a member or element.
    void separate();
    void beforeValue();

    OutputSink& sink_;
    std::vector<Level> levels_;
    bool afterKey_ = false;
};

} // namespace lettriner::cli
