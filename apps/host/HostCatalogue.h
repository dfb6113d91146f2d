#pragma once

#include <QTranslator>

/// The client's translation catalogue, as far as the call windows need it: the texts behind the keys of their dialogs
/// and tool tips. The key alone decides, whatever the context, because the same keys serve all windows.
class HostCatalogue : public QTranslator
{
    Q_OBJECT

public:
    using QTranslator::QTranslator;

    /// The text of the key, or a null text for an unknown one, so that Qt goes on to the next catalogue.
    QString translate(const char *context, const char *sourceText, const char *disambiguation, int n) const override;

    /// False: an empty catalogue would not be installed.
    bool isEmpty() const override { return false; }
};
