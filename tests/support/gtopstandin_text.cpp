// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/gtopstandin.h"

#include <charconv>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace standin {
namespace {

// The fields of each kind of line, both for writing and for reading.
template <typename Visitor>
void visitFields(Visitor &visit, Cpu &cpu)
{
    visit("idle", cpu.idle);
    visit("total", cpu.total);
    visit("load", cpu.load);
}

template <typename Visitor>
void visitFields(Visitor &visit, Memory &memory)
{
    visit("total", memory.total);
    visit("free", memory.free);
    visit("buffer", memory.buffer);
    visit("cached", memory.cached);
}

template <typename Visitor>
void visitFields(Visitor &visit, Mount &mount)
{
    visit("device", mount.device);
    visit("directory", mount.directory);
    visit("type", mount.type);
    visit("blocks", mount.blocks);
    visit("bfree", mount.freeBlocks);
    visit("bavail", mount.availBlocks);
    visit("files", mount.files);
    visit("bsize", mount.blockSize);
    visit("fails", mount.fails);
    visit("ms", mount.blocksForMs);
}

template <typename Visitor>
void visitFields(Visitor &visit, Interface &net)
{
    visit("name", net.name);
    visit("address", net.address);
    visit("mask", net.mask);
    visit("in", net.bytesIn);
    visit("out", net.bytesOut);
    visit("errors", net.errors);
    visit("fails", net.fails);
}

template <typename Visitor>
void visitFields(Visitor &visit, std::pair<int, Process> &process)
{
    visit("pid", process.first);
    visit("ppid", process.second.parent);
    visit("name", process.second.name);
    visit("uid", process.second.uid);
    visit("state", process.second.state);
    visit("nice", process.second.nice);
    visit("utime", process.second.userTime);
    visit("stime", process.second.systemTime);
    visit("start", process.second.startTime);
    visit("virtual", process.second.virtualSize);
    visit("resident", process.second.resident);
    visit("shared", process.second.shared);
    visit("args", process.second.arguments);
    visit("answers", process.second.answersBeforeEnd);
}

/// A line with a single field.
template <typename Value>
struct SingleField
{
    const char *name;
    Value value;
};

template <typename Visitor, typename Value>
void visitFields(Visitor &visit, SingleField<Value> &field)
{
    visit(field.name, field.value);
}

const SingleField<bool> listFails = {"fails", false};
const SingleField<int> othersLimit = {"most", -1};

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
    const auto append = [&](const char *name, const auto &value) {
        line += std::string(" ") + name + ' ' + encoded(value);
    };
    visitFields(append, record);
    return line + '\n';
}

/// Reads the fields that follow the kind of the line; those that are missing keep their value in `record`.
template <typename Record>
Record recordOf(std::istringstream &rest, Record record = {})
{
    std::map<std::string, std::string> words;
    for (std::string name, word; rest >> name >> word;) {
        words[name] = word;
    }
    const auto read = [&](const char *name, auto &value) {
        const auto found = words.find(name);
        if (found != words.end()) {
            decode(found->second, value);
            words.erase(found);
        }
    };
    visitFields(read, record);
    if (!words.empty()) {
        throw std::runtime_error("no such field: " + words.begin()->first);
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
        machine.mountListFails = recordOf(rest, listFails).value;
    } else if (kind == "mount") {
        madeIn(machine.mounts).push_back(recordOf<Mount>(rest));
    } else if (kind == "nets") {
        machine.interfaces.emplace();
        machine.interfaceListFails = recordOf(rest, listFails).value;
    } else if (kind == "net") {
        madeIn(machine.interfaces).push_back(recordOf<Interface>(rest));
    } else if (kind == "processes") {
        machine.processes.emplace();
    } else if (kind == "process") {
        madeIn(machine.processes).insert(recordOf<std::pair<int, Process>>(rest));
    } else if (kind == "others") {
        machine.mostOfOthers = recordOf(rest, othersLimit).value;
    } else {
        throw std::runtime_error("no such kind of line: " + kind);
    }
}

} // namespace

std::string toText(const Machine &machine)
{
    std::string text;
    if (machine.cpus) {
        text += "cpus\n";
        for (const Cpu &cpu : *machine.cpus) {
            text += lineOf("cpu", cpu);
        }
    }
    if (machine.memory) {
        text += lineOf("mem", *machine.memory);
    }
    if (machine.mounts) {
        text += lineOf("mounts", SingleField<bool>{listFails.name, machine.mountListFails});
        for (const Mount &mount : *machine.mounts) {
            text += lineOf("mount", mount);
        }
    }
    if (machine.interfaces) {
        text += lineOf("nets", SingleField<bool>{listFails.name, machine.interfaceListFails});
        for (const Interface &net : *machine.interfaces) {
            text += lineOf("net", net);
        }
    }
    if (machine.processes) {
        text += "processes\n";
        for (const auto &[pid, process] : *machine.processes) {
            text += lineOf("process", std::pair<int, Process>(pid, process));
        }
    }
    if (machine.mostOfOthers >= 0) {
        text += lineOf("others", SingleField<int>{othersLimit.name, machine.mostOfOthers});
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
