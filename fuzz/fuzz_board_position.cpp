// SPDX-License-Identifier: GPL-3.0-or-later
// Positions as text, from any bytes: the board file reader, the CGP reader
// and the rack reader never crash, and what they read they write back so
// that it reads the same again. The position checks run on what was read.

#include "board/lexicon.h"
#include "board/position_checks.h"
#include "board/position_text.h"
#include "fuzz_input.h"

namespace {

using namespace lettriner;
using namespace lettriner::board;

const WordGraph& smallGraph() {
    static const Lexicon lexicon = buildLexicon({{8, 1, 21, 19}, {19, 5, 5}, {15, 8, 14, 5}});
    return lexicon.graph;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);

    const BoardRead file = readBoardFile(bytes);
    if (file.error.empty()) {
        const std::string written = writeBoardFile(file.board);
        const BoardRead again = readBoardFile(written);
        if (!again.error.empty() || again.board != file.board)
            fuzz::fail("a board file read does not read back the same once written");
        if (writeBoardFile(again.board) != written)
            fuzz::fail("a board file written twice differs");
        (void)warningTexts(checkPosition(file.board, Rack{}, smallGraph()));
    } else if (file.error.find('\n') != std::string::npos) {
        fuzz::fail("a board file error spans more than one line");
    }

    const PositionRead cgp = readCgp(bytes);
    if (cgp.error.empty()) {
        const std::string written = writeCgp(cgp.position);
        const PositionRead again = readCgp(written);
        if (!again.error.empty() || again.position != cgp.position)
            fuzz::fail("a CGP read does not read back the same once written");
        const BoardRead asFile = readBoardFile(writeBoardFile(cgp.position.board));
        if (!asFile.error.empty() || asFile.board != cgp.position.board)
            fuzz::fail("a CGP board does not round-trip through a board file");
        (void)warningTexts(checkPosition(cgp.position.board, cgp.position.rack, smallGraph()));
    } else if (cgp.error.find('\n') != std::string::npos) {
        fuzz::fail("a CGP error spans more than one line");
    }

    const RackRead rack = readRack(bytes);
    if (rack.error.empty()) {
        const RackRead again = readRack(rackText(rack.rack));
        if (!again.error.empty() || again.rack != rack.rack)
            fuzz::fail("a rack does not read back the same once written");
    }
    return 0;
}
