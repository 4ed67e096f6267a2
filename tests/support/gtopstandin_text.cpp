// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/gtopstandin.h"

#include <charconv>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace standin {
namespace {

// The fields of each kind of line in their order, both for writing and for reading.
template <typename Visitor>
void visitFields(Visitor &visit, Cpu &cpu)
{
    visit(cpu.idle, cpu.total, cpu.load);
}

template <typename Visitor>
void visitFields(Visitor &visit, Memory &memory)
{
    visit(memory.total, memory.free, memory.buffer, memory.cached);
}

template <typename Visitor>
void visitFields(Visitor &visit, Mount &mount)
{
    visit(mount.device, mount.directory, mount.type, mount.blocks, mount.freeBlocks, mount.availBlocks,
          mount.files, mount.blockSize, mount.fails, mount.blocksForMs);
}

template <typename Visitor>
void visitFields(Visitor &visit, Interface &net)
{
    visit(net.name, net.address, net.mask, net.bytesIn, net.bytesOut, net.errors, net.fails);
}

template <typename Visitor, typename Pid>
void visitFields(Visitor &visit, std::pair<Pid, Process> &entry)
{
    auto &[pid, process] = entry;
    visit(pid, process.parent, process.name, process.uid, process.state, process.nice, process.userTime,
          process.systemTime, process.startTime, process.virtualSize, process.resident, process.shared,
          process.arguments, process.answersBeforeEnd, process.memoryFails);
}

template <typename Visitor>
void visitFields(Visitor &visit, bool &listFails)
{
    visit(listFails);
}

template <typename Visitor>
void visitFields(Visitor &visit, int &mostOfOthers)
{
    visit(mostOfOthers);
}

const char *const emptyWord = "%-";

std::string encoded(const std::string &bytes)
{
    std::string word;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte > ' ' && byte < 0x7f && c != '%') {
            word += c;
        } else {
            char escape[4];
            std::snprintf(escape, sizeof escape, "%%%02X", static_cast<unsigned>(byte));
            word += escape;
        }
    }
    return word.empty() ? emptyWord : word;
}

template <typename Number>
std::string encoded(Number number)
{
    return std::to_string(number);
}

template <typename Number>
void decode(const std::string &word, Number &number, int base = 10)
{
    const char *end = word.data() + word.size();
    const auto result = std::from_chars(word.data(), end, number, base);
    if (result.ec != std::errc() || result.ptr != end) {
        throw std::runtime_error("not a number in range: " + word);
    }
}

void decode(const std::string &word, bool &flag)
{
    flag = word == "1";
}

void decode(const std::string &word, std::string &bytes)
{
    bytes.clear();
    for (std::size_t i = 0; word != emptyWord && i < word.size(); ++i) {
        if (word[i] != '%') {
            bytes += word[i];
            continue;
        }
        unsigned char byte = 0;
        decode(word.substr(i + 1, 2), byte, 16);
        bytes += static_cast<char>(byte);
        i += 2;
    }
}

template <typename Record>
std::string lineOf(const char *kind, Record record)
{
    std::string line = kind;
    const auto append = [&](const auto &...values) { ((line += ' ' + encoded(values)), ...); };
    visitFields(append, record);
    return line + '\n';
}

template <typename List>
std::string linesOf(const char *kind, const List &list)
{
    std::string lines;
    for (const auto &record : list) {
        lines += lineOf(kind, record);
    }
    return lines;
}

template <typename Value>
void readWord(std::istringstream &rest, Value &value)
{
    std::string word;
    if (!(rest >> word)) {
        throw std::runtime_error("too few fields");
    }
    decode(word, value);
}

/// Reads the fields that follow the kind of the line.
template <typename Record>
Record recordOf(std::istringstream &rest)
{
    Record record = {};
    const auto read = [&](auto &...values) { (readWord(rest, values), ...); };
    visitFields(read, record);
    if (std::string more; rest >> more) {
        throw std::runtime_error("too many fields");
    }
    return record;
}

/// The list, which is created if the machine has none yet.
template <typename List>
List &madeIn(std::optional<List> &list)
{
    return list ? *list : list.emplace();
}

void readLine(const std::string &line, Machine &machine)
{
    std::istringstream rest(line);
    std::string kind;
    if (!(rest >> kind) || kind[0] == '#') {
        return;
    }
    if (kind == "cpus") {
        machine.cpus.emplace();
    } else if (kind == "cpu") {
        madeIn(machine.cpus).push_back(recordOf<Cpu>(rest));
    } else if (kind == "mem") {
        machine.memory = recordOf<Memory>(rest);
    } else if (kind == "mounts") {
        machine.mounts.emplace();
        machine.mountListFails = recordOf<bool>(rest);
    } else if (kind == "mount") {
        madeIn(machine.mounts).push_back(recordOf<Mount>(rest));
    } else if (kind == "nets") {
        machine.interfaces.emplace();
        machine.interfaceListFails = recordOf<bool>(rest);
    } else if (kind == "net") {
        madeIn(machine.interfaces).push_back(recordOf<Interface>(rest));
    } else if (kind == "processes") {
        machine.processes.emplace();
    } else if (kind == "process") {
        madeIn(machine.processes).insert(recordOf<std::pair<int, Process>>(rest));
    } else if (kind == "others") {
        machine.mostOfOthers = recordOf<int>(rest);
    } else {
        throw std::runtime_error("no such kind of line: " + kind);
    }
}

} // namespace

std::string toText(const Machine &machine)
{
    std::string text;
    if (machine.cpus) {
        text += "cpus\n" + linesOf("cpu", *machine.cpus);
    }
    if (machine.memory) {
        text += lineOf("mem", *machine.memory);
    }
    if (machine.mounts) {
        text += lineOf("mounts", machine.mountListFails) + linesOf("mount", *machine.mounts);
    }
    if (machine.interfaces) {
        text += lineOf("nets", machine.interfaceListFails) + linesOf("net", *machine.interfaces);
    }
    if (machine.processes) {
        text += "processes\n" + linesOf("process", *machine.processes);
    }
    if (machine.mostOfOthers >= 0) {
        text += lineOf("others", machine.mostOfOthers);
    }
    return text;
}

Machine fromText(const std::string &text)
{
    Machine machine;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        try {
            readLine(line, machine);
        } catch (const std::runtime_error &error) {
            throw std::runtime_error(std::string(error.what()) + " in \"" + line + '"');
        }
    }
    return machine;
}

void save(const Machine &machine, const std::string &path)
{
    const std::string beside = path + ".new";
    std::ofstream file(beside, std::ios::binary | std::ios::trunc);
    file << toText(machine);
    file.close();
    if (!file || std::rename(beside.c_str(), path.c_str()) != 0) {
        throw std::runtime_error("can't write " + path);
    }
}

} // namespace standin
