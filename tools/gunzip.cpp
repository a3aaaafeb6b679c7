// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/gunzip.h"

// next_in as a pointer to const: the input is never written.
#define ZLIB_CONST
#include <algorithm>
#include <climits>
#include <zlib.h>

namespace lettriner::tools {
namespace {

// Owns a zlib stream set up for gzip (not zlib or raw deflate) input.
class GzipStream {
public:
    GzipStream() { ready_ = inflateInit2(&stream_, 16 + MAX_WBITS) == Z_OK; }
    ~GzipStream() {
        if (ready_)
            inflateEnd(&stream_);
    }
    GzipStream(const GzipStream&) = delete;
    GzipStream& operator=(const GzipStream&) = delete;

    [[nodiscard]] bool ready() const { return ready_; }
    z_stream& operator*() { return stream_; }

private:
    z_stream stream_{};
    bool ready_ = false;
};

bool startsGzipMember(std::string_view bytes) {
    return bytes.size() >= 2 && static_cast<unsigned char>(bytes[0]) == 0x1f &&
           static_cast<unsigned char>(bytes[1]) == 0x8b;
}

Gunzipped failure(std::string why) {
    return {{}, std::move(why)};
}

} // namespace

Gunzipped gunzip(std::string_view compressed, std::size_t limit) {
    if (!startsGzipMember(compressed))
        return failure("not a gzip file");
    GzipStream gzip;
    if (!gzip.ready())
        return failure("zlib could not start");
    z_stream& stream = *gzip;
    std::string out;
    constexpr std::size_t kChunk = std::size_t{1} << 20;
    std::size_t taken = 0; // input bytes handed to zlib so far
    for (;;) {
        if (stream.avail_in == 0 && taken < compressed.size()) {
            // zlib counts in unsigned int: hand over large inputs piece by piece.
            const std::size_t piece = std::min<std::size_t>(compressed.size() - taken, UINT_MAX);
            stream.next_in = reinterpret_cast<const Bytef*>(compressed.data() + taken);
            stream.avail_in = static_cast<uInt>(piece);
            taken += piece;
        }
        if (out.size() >= limit)
            return failure("more than " + std::to_string(limit) + " bytes when unpacked");
        const std::size_t before = out.size();
        const std::size_t room = std::min(kChunk, limit - before);
        out.resize(before + room);
        stream.next_out = reinterpret_cast<Bytef*>(out.data() + before);
        stream.avail_out = static_cast<uInt>(room);
        const int status = inflate(&stream, Z_NO_FLUSH);
        out.resize(before + room - stream.avail_out);
        if (status == Z_STREAM_END) {
            const std::string_view rest = compressed.substr(taken - stream.avail_in);
            if (rest.empty())
                return {std::move(out), {}};
            // gzip -d reads a member after the last one; zlib stops at each end.
            if (!startsGzipMember(rest))
                return failure("bytes after the end of the gzip data");
            if (inflateReset(&stream) != Z_OK)
                return failure("zlib could not start the next member");
            continue;
        }
        if (status == Z_BUF_ERROR && stream.avail_in == 0 && taken == compressed.size())
            return failure("the gzip data ends too early (truncated file)");
        if (status != Z_OK && status != Z_BUF_ERROR) {
            return failure(std::string("corrupt gzip data") +
                           (stream.msg != nullptr ? std::string(": ") + stream.msg : ""));
        }
    }
}

} // namespace lettriner::tools
