#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace OryUtils {

/// Text for a widget: every kind of line break becomes the one that Qt knows. Lone surrogates pass; Qt draws them as
/// the replacement character.
inline QString ParaQt(std::u16string_view ATexto) {
    QString texto(reinterpret_cast<const QChar*>(ATexto.data()), static_cast<qsizetype>(ATexto.size()));
    texto.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    texto.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return texto;
}

inline std::u16string DeQt(const QString& ATexto) { return ATexto.toStdU16String(); }

/// Text of a memo, with the library's line breaks.
inline std::u16string DeLinhasQt(QString ATexto) {
    ATexto.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    return DeQt(ATexto);
}

}  // namespace OryUtils
