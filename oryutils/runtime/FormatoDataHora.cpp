#include "oryutils/runtime/FormatoDataHora.hpp"

#include "oryutils/characters/Ascii.hpp"
#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/runtime/interno/Calendario.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

namespace OryUtils {
namespace {

// Appends ANumero, 0 to 9999, with at least ADigitos digits, 1 to 4.
void JuntarNumero(std::u16string& ATexto, int ANumero, std::size_t ADigitos) {
    const std::size_t precisos = ANumero < 10 ? 1 : ANumero < 100 ? 2 : ANumero < 1000 ? 3 : 4;
    ATexto.append(std::max(precisos, ADigitos), u'0');
    for (auto digito = ATexto.rbegin(); ANumero > 0; ++digito, ANumero /= 10)
        *digito = static_cast<char16_t>(u'0' + ANumero % 10);
}

// Length of the mark of the twelve-hour clock at the start of ATexto; 0 when there is none.
std::size_t MedirMarca(std::u16string_view ATexto) {
    for (const std::u16string_view marca : {u"am/pm", u"ampm", u"a/p"})
        if (std::ranges::equal(ATexto.substr(0, marca.size()), marca, {}, Interno::MinusculaAscii<char16_t>))
            return marca.size();
    return 0;
}

// The literal that starts with the quote at AInicio: its text and the position after it. Without a closing quote it
// goes up to the end.
std::pair<std::u16string_view, std::size_t> LerLiteral(std::u16string_view APadrao, std::size_t AInicio) {
    const std::size_t fim = std::min(APadrao.find(APadrao[AInicio], AInicio + 1), APadrao.size());
    return {APadrao.substr(AInicio + 1, fim - AInicio - 1), std::min(fim + 1, APadrao.size())};
}

bool UsaDozeHoras(std::u16string_view APadrao) {
    if (std::ranges::none_of(APadrao, [](char16_t c) { return c == u'a' || c == u'A'; })) return false;
    for (std::size_t i = 0; i < APadrao.size(); ++i) {
        if (APadrao[i] == u'\'' || APadrao[i] == u'"')
            i = LerLiteral(APadrao, i).second - 1;
        else if (MedirMarca(APadrao.substr(i)) > 0)
            return true;
    }
    return false;
}

class TEscritor {
public:
    TEscritor(TDateTime AData, const TFormatSettings& AFormatos) : FFormatos(AFormatos) {
        const auto valor = Interno::Decompor(AData);
        if (!valor) return;
        FHora = Interno::DeMilis(valor->Mili);
        FMeiaNoite = valor->Mili == 0;
        if (!valor->TemData()) return;
        FData = Interno::DeDias(static_cast<int>(valor->Dia));
        FDiaDaSemana = Interno::DiaDaSemana(valor->Dia);
    }

    void Aplicar(std::u16string_view APadrao) {
        FSaida.reserve(2 * APadrao.size());
        Aplicar(APadrao, false);
    }
    std::u16string Entregar() { return std::move(FSaida); }

private:
    // AInterno: APadrao is one of the formats; the elements that stand for formats write nothing in it.
    void Aplicar(std::u16string_view APadrao, bool AInterno) {
        const bool dozeHoras = UsaDozeHoras(APadrao);
        bool aposHora = false;  // the last letter was an h: separators and literals between do not count
        for (std::size_t i = 0; i < APadrao.size();) {
            const char16_t c = APadrao[i];
            if (!EhLetra(c)) {
                i = EscreverSinal(APadrao, i);
                continue;
            }
            const char16_t letra = Interno::MinusculaAscii(c);
            if (letra == u'a') {
                const std::size_t tamanho = MedirMarca(APadrao.substr(i));
                if (tamanho > 0)
                    EscreverMarca(APadrao.substr(i, tamanho));
                else
                    FSaida += c;
                aposHora = false;
                i += std::max<std::size_t>(tamanho, 1);
                continue;
            }
            std::size_t fim = i + 1;
            while (fim < APadrao.size() && Interno::MinusculaAscii(APadrao[fim]) == letra) ++fim;
            EscreverElemento(letra, APadrao.substr(i, fim - i), aposHora, dozeHoras, AInterno);
            aposHora = letra == u'h';
            i = fim;
        }
    }

    // A separator, a literal or a character that stands for itself. Gives the position after it.
    std::size_t EscreverSinal(std::u16string_view APadrao, std::size_t AInicio) {
        switch (APadrao[AInicio]) {
            case u'/':
                EscreverSeparador(FFormatos.DateSeparator);
                break;
            case u':':
                EscreverSeparador(FFormatos.TimeSeparator);
                break;
            case u'\'':
            case u'"': {
                const auto [texto, fim] = LerLiteral(APadrao, AInicio);
                FSaida += texto;
                return fim;
            }
            default:
                FSaida += APadrao[AInicio];
        }
        return AInicio + 1;
    }

    void EscreverSeparador(char16_t ASeparador) {
        if (ASeparador) FSaida += ASeparador;
    }

    // The mark as the pattern writes it: its first half or its second; ampm the texts of the formats.
    void EscreverMarca(std::u16string_view AMarca) {
        const bool manha = FHora.Hora < 12;
        const std::size_t letras = AMarca.size() / 2;
        if (AMarca.size() == 4)
            FSaida += manha ? FFormatos.TimeAMString : FFormatos.TimePMString;
        else
            FSaida += manha ? AMarca.substr(0, letras) : AMarca.substr(AMarca.size() - letras);
    }

    // ACorrida: the same letter one or more times.
    void EscreverElemento(char16_t ALetra, std::u16string_view ACorrida, bool AAposHora, bool ADozeHoras,
                          bool AInterno) {
        const std::size_t vezes = ACorrida.size();
        const std::size_t digitos = vezes > 1 ? 2 : 1;
        switch (ALetra) {
            case u'd':
                EscreverDia(vezes, AInterno);
                break;
            case u'm':
                if (vezes <= 2)
                    JuntarNumero(FSaida, AAposHora ? FHora.Minuto : FData.Mes, digitos);
                else
                    EscreverNome(vezes == 3 ? FFormatos.ShortMonthNames : FFormatos.LongMonthNames, FData.Mes);
                break;
            case u'y':
                JuntarNumero(FSaida, vezes <= 2 ? FData.Ano % 100 : FData.Ano, vezes <= 2 ? 2 : 4);
                break;
            case u'h':
                JuntarNumero(FSaida, ADozeHoras ? (FHora.Hora + 11) % 12 + 1 : FHora.Hora, digitos);
                break;
            case u'n':
                JuntarNumero(FSaida, FHora.Minuto, digitos);
                break;
            case u's':
                JuntarNumero(FSaida, FHora.Segundo, digitos);
                break;
            case u'z':
                JuntarNumero(FSaida, FHora.Milissegundo, vezes > 1 ? 3 : 1);
                break;
            case u't':
                if (!AInterno) Aplicar(vezes > 1 ? FFormatos.LongTimeFormat : FFormatos.ShortTimeFormat, true);
                break;
            case u'c':
                if (!AInterno) EscreverTudo();
                break;
            default:
                FSaida += ACorrida;
        }
    }

    void EscreverDia(std::size_t AVezes, bool AInterno) {
        if (AVezes <= 2)
            JuntarNumero(FSaida, FData.Dia, AVezes);
        else if (AVezes <= 4)
            EscreverNome(AVezes == 3 ? FFormatos.ShortDayNames : FFormatos.LongDayNames, FDiaDaSemana);
        else if (!AInterno)
            Aplicar(AVezes == 5 ? FFormatos.ShortDateFormat : FFormatos.LongDateFormat, true);
    }

    void EscreverTudo() {
        Aplicar(FFormatos.ShortDateFormat, true);
        if (FMeiaNoite) return;
        FSaida += u' ';
        Aplicar(FFormatos.LongTimeFormat, true);
    }

    // ANumero counts from 1; 0 is a value without a date.
    template <std::size_t AQuantidade>
    void EscreverNome(const std::array<std::u16string, AQuantidade>& ANomes, int ANumero) {
        if (ANumero > 0) FSaida += ANomes[static_cast<std::size_t>(ANumero) - 1];
    }

    const TFormatSettings& FFormatos;
    TPartesData FData{0, 0, 0};
    TPartesHora FHora{0, 0, 0, 0};
    int FDiaDaSemana = 0;
    bool FMeiaNoite = true;
    std::u16string FSaida{};
};

}  // namespace

std::u16string FormatarDataHora(std::u16string_view APadrao, TDateTime AData, const TFormatSettings& AFormatos) {
    TEscritor escritor(AData, AFormatos);
    escritor.Aplicar(APadrao.empty() ? u"c" : APadrao);
    return escritor.Entregar();
}

}  // namespace OryUtils
