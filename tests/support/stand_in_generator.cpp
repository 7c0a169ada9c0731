// Stands in for the generator: records its arguments in arguments.txt, one a line, and then does
// what the environment variable STAND_IN says, one word of instruction a line:
//
//     print TEXT        TEXT and a line feed on the standard output
//     bytes TEXT        TEXT alone, with \xHH for a byte; flushed, and followed by a pause
//     lines COUNT       COUNT numbered lines
//     file NAME TEXT    a file
//     wait NAME         until there is such a file
//     crash, hang, exit STATUS

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <thread>

namespace {

using namespace std::chrono_literals;

std::string unescaped(const std::string &text)
{
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text.compare(i, 2, "\\x") == 0) {
            bytes += static_cast<char>(std::stoi(text.substr(i + 2, 2), nullptr, 16));
            i += 3;
        } else {
            bytes += text[i];
        }
    }
    return bytes;
}

void obey(const std::string &instruction)
{
    std::istringstream line(instruction);
    std::string word, rest;
    line >> word >> std::ws;
    std::getline(line, rest);
    if (word == "print") {
        std::cout << rest << std::endl;
    } else if (word == "bytes") {
        std::cout << unescaped(rest) << std::flush;
        std::this_thread::sleep_for(100ms);
    } else if (word == "lines") {
        for (int i = 0; i < std::stoi(rest); ++i)
            std::cout << "line " << i << " of a generator that has a lot to say <b>today</b>\n";
    } else if (word == "file") {
        const std::size_t space = rest.find(' ');
        std::ofstream(rest.substr(0, space)) << unescaped(rest.substr(space + 1));
    } else if (word == "wait") {
        while (!std::filesystem::exists(rest))
            std::this_thread::sleep_for(10ms);
    } else if (word == "crash") {
        std::abort();
    } else if (word == "hang") {
        std::this_thread::sleep_for(1h);
    } else if (word == "exit") {
        std::cout.flush();
        std::exit(std::stoi(rest));
    }
}

} // namespace

int main(int argc, char *argv[])
{
    std::ofstream record("arguments.txt");
    for (int i = 1; i < argc; ++i)
        record << argv[i] << '\n';
    record.close();

    const char *instructions = std::getenv("STAND_IN");
    std::istringstream lines(instructions ? instructions : "");
    std::string line;
    while (std::getline(lines, line))
        obey(line);
}
