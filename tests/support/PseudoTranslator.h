#pragma once

#include <QTranslator>

// Stands in for a language with longer words: every text comes back in brackets and about 40 % longer, its
// placeholders kept, so a test sees which texts went through the translator and whether they still fit.
class PseudoTranslator final : public QTranslator {
public:
    [[nodiscard]] static bool isTranslated(const QString& text) { return text.startsWith(u'['); }

    [[nodiscard]] QString translate(const char* /*context*/, const char* sourceText, const char* /*disambiguation*/,
                                    int /*n*/) const override
    {
        const QString source = QString::fromUtf8(sourceText);
        if (source.isEmpty())
            return {};
        // The padding in words of five, so that wrapping text can still wrap.
        QString padding;
        for (int i = 0; i < qMax(1, int(source.size() * 0.4)); ++i)
            padding += i % 5 == 4 ? u' ' : u'~';
        return u'[' + source + u' ' + padding.trimmed() + u']';
    }
    [[nodiscard]] bool isEmpty() const override { return false; }
};
