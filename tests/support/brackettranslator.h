// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_SUPPORT_BRACKETTRANSLATOR_H
#define TESTS_SUPPORT_BRACKETTRANSLATOR_H

#include <QCoreApplication>
#include <QTranslator>

/// As long as it exists, puts all texts of one context that have neither disambiguation nor plural form into
/// angle brackets.
class BracketTranslator : public QTranslator
{
public:
    explicit BracketTranslator(const char *context) : translatedContext(context)
    {
        QCoreApplication::installTranslator(this);
    }
    ~BracketTranslator() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *disambiguation,
                      int n) const override
    {
        if (qstrcmp(context, translatedContext) != 0 || disambiguation || n != -1) {
            return QString();
        }
        return QLatin1Char('<') + QString::fromUtf8(source) + QLatin1Char('>');
    }

private:
    const char *translatedContext;
};

#endif
