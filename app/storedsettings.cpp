// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/storedsettings.h"

#include <QCoreApplication>
#include <QFile>
#include <QStandardPaths>
#include <QtEndian>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace {

constexpr qint64 largestFile = 64LL * 1024; ///< bytes; ours has less than 4 KiB
constexpr char noFile[] = "/dev/null/none"; ///< can't exist, since it would be in a device

/// Value of a hexadecimal (base 16) or octal (base 8) digit; -1 for any other character.
int digitValue(char character, int base)
{
    const int value = character >= '0' && character <= '9'   ? character - '0'
                      : character >= 'a' && character <= 'f' ? character - 'a' + 10
                      : character >= 'A' && character <= 'F' ? character - 'A' + 10
                                                             : base;
    return value < base ? value : -1;
}

/// Whether an unescaped character may be dropped when a value is read.
bool isDropped(char character)
{
    return QByteArray("\" \t\r\n").contains(character);
}

/// Decodes the number of an escape sequence and moves `at` past it.
char escapedCharacter(const QByteArray &content, int &at, int base)
{
    unsigned value = 0;
    for (; at < content.size() && digitValue(content.at(at), base) >= 0; ++at) {
        value =
            (value * static_cast<unsigned>(base) + static_cast<unsigned>(digitValue(content.at(at), base))) &
            0xffffU;
    }
    return value < 0x80U ? static_cast<char>(value) : '?';
}

/// The content without its quotes, white space and escapes, so that it contains whatever a value can become
/// when it is read: blanks are dropped after a closing quote, line ends after a backslash.
QByteArray unescaped(const QByteArray &content)
{
    QByteArray plain;
    for (int at = 0; at < content.size();) {
        const char character = content.at(at++);
        if (character != '\\') {
            plain += QByteArray(isDropped(character) ? 0 : 1, character);
        } else if (at < content.size() && content.at(at) == 'x') {
            plain += escapedCharacter(content, ++at, 16);
        } else if (at < content.size() && digitValue(content.at(at), 8) >= 0) {
            plain += escapedCharacter(content, at, 8);
        } else {
            ++at;
        }
    }
    return plain;
}

enum class Finding { Usable, Damaged, Unusable };

/// What can be said of an open file of a size; its content is read without waiting.
Finding inspectContent(int descriptor, qint64 size)
{
    if (size > largestFile) {
        return Finding::Damaged;
    }
    QFile file;
    const bool opened = file.open(descriptor, QIODevice::ReadOnly | QIODevice::Unbuffered);
    const QByteArray content = opened ? file.read(largestFile + 1) : QByteArray();
    if (!opened || content.size() != size) {
        return Finding::Unusable; // such as a file of the kernel, which may have no end
    }
    return holdsSerializedObject(content) ? Finding::Damaged : Finding::Usable;
}

Finding inspect(const QByteArray &path)
{
    struct stat status = {};
    if (stat(path.constData(), &status) != 0) {
        return errno == ENOENT ? Finding::Usable : Finding::Unusable;
    }
    if (!S_ISREG(status.st_mode)) {
        return Finding::Unusable; // not opened, since that has effects on a device
    }
    const int descriptor = open(path.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    const bool isFile =
        descriptor >= 0 && fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode); // still
    const Finding finding = isFile ? inspectContent(descriptor, status.st_size) : Finding::Unusable;
    if (descriptor >= 0) {
        close(descriptor);
    }
    return finding;
}

/// Whether QSettings could wait for its lock file without end when it saves.
bool isLockUnusable(const QByteArray &path)
{
    struct stat status = {};
    return lstat((path + ".lock").constData(), &status) == 0 && !S_ISREG(status.st_mode);
}

} // namespace

bool holdsSerializedObject(const QByteArray &content)
{
    const QByteArray plain = unescaped(content);
    return plain.contains("@Variant(") || plain.contains("@DateTime(");
}

bool isSplitterState(const QByteArray &state)
{
    // A marker, a version, the number of sizes and the sizes, four bytes each; then a byte, the width of the
    // handle (-1 for the style's), a byte, the orientation and a byte.
    constexpr int head = 12;
    constexpr int tail = 11;
    constexpr qint32 widestHandle = 100;
    if (state.size() < head + tail) {
        return false;
    }
    const char *end = state.constData() + state.size();
    const auto count = qFromBigEndian<quint32>(state.constData() + 8);
    const auto handle = qFromBigEndian<qint32>(end - 10);
    return qint64(count) * 4 == state.size() - head - tail && handle >= -1 && handle <= widestHandle &&
           qFromBigEndian<qint32>(end - 5) == Qt::Horizontal;
}

QString settingsFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QLatin1Char('/') +
           QCoreApplication::organizationName() + QLatin1Char('/') + QCoreApplication::applicationName() +
           QLatin1String(".conf");
}

QString usableSettingsFile()
{
    const QString file = settingsFile();
    const QByteArray path = QFile::encodeName(file);
    if (isLockUnusable(path)) {
        return QLatin1String(noFile);
    }
    const Finding finding = inspect(path);
    const bool isSetAside =
        finding == Finding::Damaged && std::rename(path.constData(), (path + ".damaged").constData()) == 0;
    return finding == Finding::Usable || isSetAside ? file : QLatin1String(noFile);
}
