#pragma once

#include <QTranslator>

namespace OryUtils {

/// Portuguese for the texts that Qt's own widgets bring (context menus of edits, the file dialog), whatever language
/// the machine has. Installed for good where the application is the toolkit's own, and while a picker is shown in a
/// host's.
class TTradutorQt final : public QTranslator {
public:
    using QTranslator::QTranslator;
    QString translate(const char* AContexto, const char* ATexto, const char* ADistincao,
                      int AQuantidade) const override;
    bool isEmpty() const override { return false; }
};

}  // namespace OryUtils
