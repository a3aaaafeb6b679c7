// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Where the command line's output goes. Every format is written piece by
// piece, a row at a time, so that no output is ever built whole in memory.

#include <cstdio>
#include <string>
#include <string_view>

namespace lettriner::cli {

class OutputSink {
public:
    virtual ~OutputSink() = default;
    virtual void write(std::string_view text) = 0;
};

// Everything written, kept (tests).
class StringSink final : public OutputSink {
public:
    void write(std::string_view piece) override { text.append(piece); }
    std::string text;
};

// A C stream, through its own buffer.
class FileSink final : public OutputSink {
public:
    explicit FileSink(std::FILE* file) : file_(file) {}
    void write(std::string_view text) override;
    // Flushes; true when everything written reached the stream.
    [[nodiscard]] bool finish();

private:
    std::FILE* file_;
    bool failed_ = false;
};

} // namespace lettriner::cli
