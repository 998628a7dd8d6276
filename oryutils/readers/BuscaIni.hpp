#pragma once

#include "oryutils/OryExport.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace OryUtils {

/// Looks for one key in the bytes of an INI file, which come in blocks of any size; only the line at hand is kept.
///   - "[Name]" begins a section, "Key=Value" is a line of it; both may be indented. Names are compared whatever their
///     letter case, without the blanks around them. A line that begins with ";" is a comment; any other line, and what
///     stands before the first section, is nothing.
///   - The value has no blanks around it and loses one pair of quotes, single or double. A key that comes twice, or
///     whose section does, has the first value.
///   - Lines end with CR, LF or both. Of a line only the first 65,536 characters count.
///   - UTF-16 when the file begins with its mark (either byte order); otherwise each line is UTF-8 where it is
///     well-formed UTF-8 and Windows-1252 where it is not.
/// Any bytes are taken; nothing is refused.
class ORY_API TBuscaIni {
public:
    TBuscaIni(std::u16string_view ASecao, std::u16string_view AChave);

    /// The next bytes of the file; those after the value was found are not looked at.
    void Receber(std::string_view ABytes);
    /// The file has ended: its last line counts too.
    void Terminar();

    /// The value; none as long as it has not been found.
    const std::optional<std::u16string>& GetValor() const noexcept { return FValor; }

private:
    enum TCodificacao : unsigned char { coDesconhecida, coOitoBits, coUtf16Baixo, coUtf16Alto };

    void DecidirCodificacao();
    void ReceberByte(char AByte);
    void ReceberUnidade(char16_t AUnidade);
    void TerminarLinha();
    void TratarLinha(std::u16string_view ALinha);

    std::u16string FSecao, FChave;  // in lower case
    std::string FInicio;            // the first bytes, until they tell the encoding
    TCodificacao FCodificacao = coDesconhecida;
    std::optional<char> FMeiaUnidade;
    std::u16string FLinha;  // units; bytes when the encoding is of 8 bits
    bool FNaSecao = false;
    std::optional<std::u16string> FValor;
};

}  // namespace OryUtils
