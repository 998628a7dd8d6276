#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/Formatos.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace OryUtils {

/// Keys that move the caret or remove text in a masked edit.
enum TTeclaMascara : int { tmEsquerda, tmDireita, tmInicio, tmFim, tmApagar, tmExcluir };

/// A masked edit as it stands: its text, the caret and the other end of the selection, as positions from 0 to the
/// length of the text (larger ones count as the end). Without a selection both are the same.
struct TEdicaoMascara {
    std::u16string Texto;
    std::size_t Cursor = 0;
    std::size_t Ancora = 0;
    /// True when the character or the text given last was not taken: the person is to be told.
    bool Recusada = false;

    bool operator==(const TEdicaoMascara&) const = default;
};

/// Why a text does not satisfy a mask.
enum TFalhaMascara : int {
    fmNenhuma,
    fmTamanho,     // more or fewer characters than the mask has places
    fmLiteral,     // another character in the place of a literal
    fmCaractere,   // a character that its place does not take
    fmIncompleto,  // a required place is empty
};
struct TExameMascara {
    TFalhaMascara Falha = fmNenhuma;
    /// Where in the text, from 0.
    std::size_t Posicao = 0;

    bool operator==(const TExameMascara&) const = default;
};

/// An edit mask: up to three fields separated by ";". The first is the pattern, the second "0" when literals are not
/// stored with the value, the third the character shown in empty places ("_" when missing). In the pattern:
///   0 9  digit, required or optional             #     digit, "+" or "-", optional
///   L l  letter                                  A a   letter or digit
///   C c  any character                           _     a space that the caret skips
///   > <  what follows in capitals, in small letters;  <>  as typed
///   !    anywhere: the value is aligned right, its empty places come first
///   / :  the date and time separators of the formats (code 0: none); a field that holds no date shows them as written
///   \    the next character is a literal; all other characters are literals
/// Digits are the ASCII ones; letters are those with two cases, accents included. A place holds one UTF-16 unit:
/// combining marks are characters of their own, "C" and "c" take neither controls nor surrogates.
/// In every place a space, and the character shown in empty places, stand for "empty".
///
/// The text of an edit has one character for each place and each literal. The value is what is stored: without the
/// literals the characters of the places, empty ones inside as spaces, empty ones at the end (with "!" at the start)
/// cut off; with the literals the whole text, empty places as spaces, or nothing when all are empty.
///
/// An empty mask is no mask: every text passes as it is. A mask never changes, so any thread may use it. All costs are
/// linear in the text; a mask has at most 255 places and literals.
/// Example:
///   const TMascara cpf(u"999.999.999-99;0; ");
///   cpf.ParaEdicao(u"52998224725")     ->  "529.982.247-25"
///   cpf.ParaValor(u"529.982.247-25")   ->  "52998224725"
class ORY_API TMascara {
public:
    static constexpr std::size_t CMaiorTamanho = 255;

    /// No mask.
    TMascara() = default;
    /// Raises EConvertError for a broken mask: no place to type in, "\" at the end of the pattern, more than
    /// CMaiorTamanho places and literals, an empty place shown as a control, a surrogate or a character that the mask
    /// takes as a digit or letter.
    explicit TMascara(std::u16string_view AMascara, const TFormatSettings& AFormatos = FormatSettings());

    bool EstahVazia() const noexcept { return FLugares.empty(); }
    bool GravaLiterais() const noexcept { return FGravaLiterais; }
    /// Of the text of an edit.
    std::size_t GetTamanho() const noexcept { return FLugares.size(); }
    /// How many of them take a character.
    std::size_t GetCampos() const noexcept { return FCampos; }

    /// A value for display: its characters in the places, one after the other and whatever they are, spaces in empty
    /// places. Those without a place follow at the end (with "!" they come before the rest): nothing is lost. Where
    /// literals are stored a value that the places do not take as it stands comes back unchanged: it has its own.
    std::u16string Exibir(std::u16string_view AValor) const;

    /// The text of an edit without a value.
    std::u16string GetTextoVazio() const;
    /// The text of an edit for a value or for a text already in the mask. Of any other text it takes what the places
    /// take; spaces and literals part its groups.
    std::u16string ParaEdicao(std::u16string_view AValor) const;
    /// The value of the text of an edit; any other text is first taken as in ParaEdicao.
    std::u16string ParaValor(std::u16string_view ATexto) const;
    /// The first failure of the text of an edit.
    TExameMascara Examinar(std::u16string_view ATexto) const noexcept;
    /// True when ATexto is a text in the mask, or a value that fills it, with every required place filled.
    bool Aceita(std::u16string_view ATexto) const;

    // Live editing: each answers what the edit becomes. A text that is not one of this mask is first made one.

    /// A typed character replaces the selection, or goes into the next place and the caret past it and the literals
    /// behind. A mark (see EhMarca) that its place does not take is passed over; inside a group that "/" or ":" ends,
    /// that mark moves the caret behind it, and so does any mark where the mask has no other literals than these and
    /// blanks: "5/3/2024" and "5-3-2024 7:05" may be typed as dates; a mark inside the last group is refused there. In
    /// a place for any character a space leaves it empty, and the character of empty places is refused. Any other
    /// character is refused.
    TEdicaoMascara Digitar(const TEdicaoMascara& AEdicao, char16_t ACaractere) const;
    /// A pasted text replaces the selection and goes in like typed characters. It goes in whole or is refused.
    TEdicaoMascara Colar(const TEdicaoMascara& AEdicao, std::u16string_view ATexto) const;
    /// Backspace and delete empty the selection, else the place before or at the caret; the places behind stay where
    /// they are. The other keys move the caret past literals.
    TEdicaoMascara Teclar(const TEdicaoMascara& AEdicao, TTeclaMascara ATecla) const;
    /// What leaving the edit does: with "!" the typed characters move right, past empty places; else nothing.
    std::u16string Sair(std::u16string_view ATexto) const;
    /// The positions of AEdicao inside the text, the text one of this mask.
    TEdicaoMascara Ajustar(const TEdicaoMascara& AEdicao) const;

    // The characters of the places, one after the other and without empty places ("content"). Boxes whose text is laid
    // out anew with each key edit it instead of the places.

    bool AlinhaADireita() const noexcept { return FADireita; }
    /// What people write between the characters of a number: blanks, . , - / : ( ) _ and the literals of the mask.
    bool EhMarca(char16_t ACaractere) const noexcept;
    /// The text of an edit for a text that people wrote, with marks or without; none when a character has no place in
    /// it.
    std::optional<std::u16string> LerTexto(std::u16string_view ATexto) const;
    /// The content of a text that people wrote, with its marks or without; none when it has anything else.
    std::optional<std::u16string> LerConteudo(std::u16string_view ATexto) const;
    /// The content of the text of an edit before APosicao.
    std::u16string GetConteudo(std::u16string_view ATexto, std::size_t APosicao = CMaiorTamanho) const;
    /// The text of an edit with AConteudo in its places: with "!" at the right end when it fits there, otherwise from
    /// the left. None when a character has no place.
    std::optional<std::u16string> Dispor(std::u16string_view AConteudo) const;
    /// The text of an edit without its empty places: "5/3/2024" where the mask has two places for the day.
    std::u16string SemVazios(std::u16string_view ATexto) const;
    /// The caret behind the first AQuantos characters of the content of ATexto.
    std::size_t GetCursorDepoisDe(std::u16string_view ATexto, std::size_t AQuantos) const;

private:
    enum TTipoLugar : std::uint8_t { tlLiteral, tlDigito, tlDigitoOuSinal, tlLetra, tlAlfanumerico, tlQualquer };
    enum TCaixaLugar : std::uint8_t { clComoDigitado, clMaiuscula, clMinuscula };
    struct TLugar {
        TTipoLugar Tipo = tlLiteral;
        TCaixaLugar Caixa = clComoDigitado;
        bool Obrigatorio = false;
        /// A literal that parts a date or a time.
        bool Separa = false;
        char16_t Literal = 0;
    };

    void Incluir(const TLugar& ALugar);
    bool EhVazio(char16_t ACaractere) const noexcept { return ACaractere == u' ' || ACaractere == FBranco; }
    static bool LugarAceita(const TLugar& ALugar, char16_t ACaractere) noexcept;
    static char16_t NaCaixa(const TLugar& ALugar, char16_t ACaractere) noexcept;
    bool EhTextoDaMascara(std::u16string_view ATexto) const noexcept;
    void Arrumar(std::u16string& ATexto) const;
    std::size_t BuscarCampo(std::size_t APosicao) const noexcept;
    void Esvaziar(std::u16string& ATexto, std::size_t AInicio, std::size_t AFim) const;
    template <bool AInverso>
    std::optional<std::size_t> Inserir(std::u16string& ATexto, std::size_t APasso, char16_t ACaractere) const;
    std::optional<std::size_t> Receber(std::u16string& ATexto, std::size_t APosicao, char16_t ACaractere) const;
    template <bool AInverso>
    std::u16string Preencher(std::u16string_view AValor) const;
    template <bool AInverso>
    bool CabeNosLugares(std::u16string_view AValor) const noexcept;
    template <bool AInverso>
    std::u16string Distribuir(std::u16string_view AValor) const;
    std::u16string RetirarLiterais(std::u16string_view ATexto) const;

    std::vector<TLugar> FLugares;
    std::size_t FCampos = 0;
    char16_t FBranco = u'_';
    bool FGravaLiterais = true;
    bool FADireita = false;
    /// The literals are separators of dates and times, and blanks between them: any mark ends a group.
    bool FSoSepara = true;
};

}  // namespace OryUtils
