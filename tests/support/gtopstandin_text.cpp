// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/gtopstandin.h"

#include <charconv>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <type_traits>

namespace standin {
namespace {

/// The words of each kind of line: one table each, for writing and for reading.
template <typename Visitor>
void visitFields(Visitor &visit, Cpu &cpu)
{
    visit("idle", cpu.idle);
    visit("total", cpu.total);
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

struct ListState
{
    bool fails = false;
};

struct OthersLimit
{
    int most = -1;
};

template <typename Visitor>
void visitFields(Visitor &visit, OthersLimit &limit)
{
    visit("most", limit.most);
}

template <typename Visitor>
void visitFields(Visitor &visit, ListState &list)
{
    visit("fails", list.fails);
}

const char *emptyWord = "%-";

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
void parseNumber(const std::string &word, Number &number, int base = 10)
{
    const char *end = word.data() + word.size();
    const auto result = std::from_chars(word.data(), end, number, base);
    if (result.ec != std::errc() || result.ptr != end) {
        throw std::runtime_error("not a number in range: " + word);
    }
}

std::string decoded(const std::string &word)
{
    std::string bytes;
    if (word == emptyWord) {
        return bytes;
    }
    for (std::size_t i = 0; i < word.size(); ++i) {
        if (word[i] != '%') {
            bytes += word[i];
            continue;
        }
        unsigned char byte = 0;
        parseNumber(word.substr(i + 1, 2), byte, 16);
        bytes += static_cast<char>(byte);
        i += 2;
    }
    return bytes;
}

class Writer
{
public:
    explicit Writer(const char *kind) : m_line(kind) {}

    void operator()(const char *name, const std::string &bytes) { append(name, encoded(bytes)); }
    template <typename Number>
    void operator()(const char *name, Number number)
    {
        append(name, std::to_string(number));
    }
    std::string line() const { return m_line + '\n'; }

private:
    void append(const char *name, const std::string &word) { m_line = m_line + ' ' + name + ' ' + word; }
    std::string m_line;
};

template <typename Record>
std::string lineOf(const char *kind, Record record)
{
    Writer writer(kind);
    visitFields(writer, record);
    return writer.line();
}

class Reader
{
public:
    explicit Reader(std::istringstream &rest)
    {
        for (std::string name, word; rest >> name >> word;) {
            m_words[name] = word;
        }
    }

    void operator()(const char *name, std::string &bytes)
    {
        take(name, [&](const std::string &word) { bytes = decoded(word); });
    }
    void operator()(const char *name, bool &flag)
    {
        take(name, [&](const std::string &word) { flag = word == "1"; });
    }
    template <typename Number>
    void operator()(const char *name, Number &number)
    {
        take(name, [&](const std::string &word) { parseNumber(word, number); });
    }
    void requireAllTaken() const
    {
        if (!m_words.empty()) {
            throw std::runtime_error("no such field: " + m_words.begin()->first);
        }
    }

private:
    template <typename Use>
    void take(const char *name, Use use)
    {
        const auto found = m_words.find(name);
        if (found == m_words.end()) {
            return;
        }
        use(found->second);
        m_words.erase(found);
    }
    std::map<std::string, std::string> m_words;
};

template <typename Record>
Record recordOf(std::istringstream &rest)
{
    Record record{};
    Reader reader(rest);
    visitFields(reader, record);
    reader.requireAllTaken();
    return record;
}

template <typename List>
typename List::value_type &appended(std::optional<List> &list, typename List::value_type record)
{
    if (!list) {
        list.emplace();
    }
    list->push_back(std::move(record));
    return list->back();
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
        appended(machine.cpus, recordOf<Cpu>(rest));
    } else if (kind == "mem") {
        machine.memory = recordOf<Memory>(rest);
    } else if (kind == "mounts") {
        machine.mounts.emplace();
        machine.mountListFails = recordOf<ListState>(rest).fails;
    } else if (kind == "mount") {
        appended(machine.mounts, recordOf<Mount>(rest));
    } else if (kind == "nets") {
        machine.interfaces.emplace();
        machine.interfaceListFails = recordOf<ListState>(rest).fails;
    } else if (kind == "net") {
        appended(machine.interfaces, recordOf<Interface>(rest));
    } else if (kind == "processes") {
        machine.processes.emplace();
    } else if (kind == "others") {
        machine.mostOfOthers = recordOf<OthersLimit>(rest).most;
    } else if (kind == "process") {
        if (!machine.processes) {
            machine.processes.emplace();
        }
        machine.processes->insert(recordOf<std::pair<int, Process>>(rest));
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
        text += lineOf("mounts", ListState{machine.mountListFails});
        for (const Mount &mount : *machine.mounts) {
            text += lineOf("mount", mount);
        }
    }
    if (machine.interfaces) {
        text += lineOf("nets", ListState{machine.interfaceListFails});
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
        text += lineOf("others", OthersLimit{machine.mostOfOthers});
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
