// Stands in for the generator, or for a compiler: records its arguments in arguments.txt, in UTF-8
// and one a line, and then does what the environment variable STAND_IN says, one word of
// instruction a line:
//
//     print TEXT        TEXT and a line feed on the standard output
//     bytes TEXT        TEXT alone, with \xHH for a byte; flushed, and followed by a pause
//     lines COUNT       COUNT lines "one of many"
//     input             what comes on the standard input, up to its end
//     file NAME TEXT    a file
//     wait NAME         until there is such a file
//     child NAME        starts itself to do "beat NAME", and does not wait for it
//     detached NAME     the same, out of reach of who ends what belongs together
//     beat NAME         makes the file NAME grow for as long as it lives
//     console           "visible" or "hidden": whether a window shows its console
//     crash, exit STATUS
// It ends by itself after ten minutes.

#include "stand_in_system.h"

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
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
        writeBytes();
        std::cout << unescaped(rest) << std::flush;
        std::this_thread::sleep_for(100ms);
    } else if (word == "lines") {
        for (int i = 0; i < std::stoi(rest); ++i)
            std::cout << "one of many\n";
    } else if (word == "input") {
        std::cout << std::cin.rdbuf();
        std::cout.clear();
    } else if (word == "file") {
        const std::size_t space = rest.find(' ');
        std::ofstream(rest.substr(0, space)) << unescaped(rest.substr(space + 1));
    } else if (word == "wait") {
        while (!std::filesystem::exists(rest))
            std::this_thread::sleep_for(10ms);
    } else if (word == "child") {
        startAgain("beat " + rest, Belonging::Child);
    } else if (word == "detached") {
        startAgain("beat " + rest, Belonging::Detached);
    } else if (word == "beat") {
        for (std::ofstream file(rest);; std::this_thread::sleep_for(10ms))
            file << '.' << std::flush;
    } else if (word == "console") {
        std::cout << (showsConsole() ? "visible" : "hidden") << std::flush;
    } else if (word == "crash") {
        crash();
    } else if (word == "exit") {
        std::cout.flush();
        std::exit(std::stoi(rest));
    }
}

} // namespace

int main(int argc, char *argv[])
{
    // Whoever should end it may have been interrupted.
    std::thread([] { std::this_thread::sleep_for(10min), std::_Exit(1); }).detach();

    std::ofstream record("arguments.txt");
    for (const std::string &argument : utf8Arguments(argc, argv))
        record << argument << '\n';
    record.close();

    const char *instructions = std::getenv("STAND_IN");
    std::istringstream lines(instructions ? instructions : "");
    std::string line;
    while (std::getline(lines, line))
        obey(line);
}
