// lettriner-make-data: writes the data files the program ships.
//   lettriner-make-data words SOURCE OUT   game word list from a UTF-8 German list
//   lettriner-make-data letters OUT1 OUT2  letter table and values
//   lettriner-make-data messages OUT       message file
//   lettriner-make-data settings OUT       default settings file

#include "tools/game_words.h"
#include "tools/shipped_tables.h"

#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <string_view>

namespace {

bool writeFile(const std::string& path, const std::string& bytes) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!out) {
        std::cerr << "lettriner-make-data: cannot write " << path << '\n';
        return false;
    }
    return true;
}

int makeWords(const std::string& source, const std::string& target) {
    std::ifstream in(source, std::ios::binary);
    if (!in) {
        std::cerr << "lettriner-make-data: the German word list " << source
                  << " is missing; install the Debian package 'wngerman'\n";
        return 1;
    }
    const std::string list{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    const auto words = lettriner::tools::gameWords(list);
    if (words.empty()) {
        std::cerr << "lettriner-make-data: " << source << " holds no usable words\n";
        return 1;
    }
    return writeFile(target, lettriner::tools::wordFileBytes(words)) ? 0 : 1;
}

int usage() {
    std::cerr << "usage: lettriner-make-data words SOURCE OUT | letters OUT1 OUT2 | "
                 "messages OUT | settings OUT\n";
    return 2;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 3)
        return usage();
    const std::string_view command = argv[1];
    if (command == "words" && argc == 4)
        return makeWords(argv[2], argv[3]);
    if (command == "letters" && argc == 4) {
        return writeFile(argv[2], lettriner::tools::letterFileBytes()) &&
                       writeFile(argv[3], lettriner::tools::valueFileBytes())
                   ? 0
                   : 1;
    }
    if (command == "messages" && argc == 3)
        return writeFile(argv[2], lettriner::tools::messageFileBytes()) ? 0 : 1;
    if (command == "settings" && argc == 3)
        return writeFile(argv[2], lettriner::tools::settingsFileBytes()) ? 0 : 1;
    return usage();
}
