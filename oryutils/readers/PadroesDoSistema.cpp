#include "oryutils/readers/PadroesDoSistema.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

namespace OryUtils::Interno {
namespace {

struct TPedaco {
    std::u16string Texto{};
    bool Literal = false;
};

constexpr bool EhLetraAscii(char16_t c) { return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z'); }

// A mark that can separate the parts of a date or time.
constexpr bool EhPontuacao(char16_t c) {
    return c > u' ' && c < 0x7F && !EhLetraAscii(c) && !(c >= u'0' && c <= u'9') && c != u'\'' && c != u'"';
}

// Elements and literals in order, to be told in the format language once the separator is known.
class TMontagem {
public:
    void JuntarElemento(std::u16string_view ATexto) {
        if (!ATexto.empty()) FPedacos.push_back({std::u16string(ATexto), false});
    }
    void JuntarLiteral(char16_t ACaractere) {
        if (FPedacos.empty() || !FPedacos.back().Literal) FPedacos.push_back({{}, true});
        FPedacos.back().Texto += ACaractere;
    }

    TPadraoLido Montar(char16_t AMarca) {
        ApararPontas();
        TPadraoLido resultado;
        resultado.Separador = BuscarSeparador();
        for (const TPedaco& pedaco : FPedacos) {
            if (!pedaco.Literal)
                resultado.Padrao += pedaco.Texto;
            else if (AMarca && pedaco.Texto.size() == 1 && pedaco.Texto[0] == resultado.Separador)
                resultado.Padrao += AMarca;
            else
                EscreverLiteral(resultado.Padrao, pedaco.Texto);
        }
        return resultado;
    }

private:
    // Blanks that a dropped zone or era leaves at the ends.
    void ApararPontas() {
        const auto soBrancos = [](const TPedaco& p) {
            return p.Literal && std::ranges::all_of(p.Texto, [](char16_t c) { return c <= u' '; });
        };
        while (!FPedacos.empty() && soBrancos(FPedacos.back())) FPedacos.pop_back();
        while (!FPedacos.empty() && soBrancos(FPedacos.front())) FPedacos.erase(FPedacos.begin());
    }

    char16_t BuscarSeparador() const {
        for (const TPedaco& pedaco : FPedacos)
            if (pedaco.Literal && pedaco.Texto.size() == 1 && EhPontuacao(pedaco.Texto[0])) return pedaco.Texto[0];
        return 0;
    }

    // Letters, quotes and the marks of the separators have a meaning of their own and go between quotes.
    static void EscreverLiteral(std::u16string& ADestino, std::u16string_view ATexto) {
        char16_t aspas = 0;
        const auto trocarAspas = [&](char16_t ANovas) {
            if (aspas == ANovas) return;
            if (aspas) ADestino += aspas;
            if (ANovas) ADestino += ANovas;
            aspas = ANovas;
        };
        for (const char16_t c : ATexto) {
            if (c == u'\'')
                trocarAspas(u'"');
            else if (c == u'"')
                trocarAspas(u'\'');
            else if (!aspas && (EhLetraAscii(c) || c == u'/' || c == u':'))
                trocarAspas(u'\'');
            ADestino += c;
        }
        trocarAspas(0);
    }

    std::vector<TPedaco> FPedacos;
};

struct TConversao {
    char16_t Letra;
    std::u16string_view Elemento;
};

// clang-format off
constexpr std::array CConversoesStrftime{
    TConversao{u'd', u"dd"},   TConversao{u'e', u"d"},    TConversao{u'm', u"mm"},   TConversao{u'y', u"yy"},
    TConversao{u'Y', u"yyyy"}, TConversao{u'b', u"mmm"},  TConversao{u'h', u"mmm"},  TConversao{u'B', u"mmmm"},
    TConversao{u'a', u"ddd"},  TConversao{u'A', u"dddd"}, TConversao{u'H', u"hh"},   TConversao{u'I', u"hh"},
    TConversao{u'k', u"h"},    TConversao{u'l', u"h"},    TConversao{u'M', u"nn"},   TConversao{u'S', u"ss"},
    TConversao{u'p', u"ampm"}, TConversao{u'P', u"ampm"},
};
// Conversions that stand for a pattern.
constexpr std::array CCompostosStrftime{
    TConversao{u'D', u"%m/%d/%y"}, TConversao{u'F', u"%Y-%m-%d"},    TConversao{u'R', u"%H:%M"},
    TConversao{u'T', u"%H:%M:%S"}, TConversao{u'r', u"%I:%M:%S %p"}, TConversao{u'n', u" "},
    TConversao{u't', u" "},
};
// clang-format on

template <std::size_t ATamanho>
constexpr std::u16string_view Procurar(const std::array<TConversao, ATamanho>& ATabela, char16_t ALetra) {
    for (const TConversao& conversao : ATabela)
        if (conversao.Letra == ALetra) return conversao.Elemento;
    return {};
}

void LerStrftime(TMontagem& AMontagem, std::u16string_view APadrao) {
    constexpr std::u16string_view CModificadores = u"EO-_0^#";
    for (std::size_t i = 0; i < APadrao.size(); ++i) {
        if (APadrao[i] != u'%') {
            AMontagem.JuntarLiteral(APadrao[i]);
            continue;
        }
        const std::size_t letra = APadrao.find_first_not_of(CModificadores, i + 1);
        if (letra == std::u16string_view::npos) return;
        const bool semZero = APadrao.substr(i, letra - i).find(u'-') != std::u16string_view::npos;
        i = letra;
        if (APadrao[i] == u'%') {
            AMontagem.JuntarLiteral(u'%');
            continue;
        }
        // A composite holds no composite: one level of nesting.
        if (const std::u16string_view composto = Procurar(CCompostosStrftime, APadrao[i]); !composto.empty()) {
            LerStrftime(AMontagem, composto);
            continue;
        }
        std::u16string_view elemento = Procurar(CConversoesStrftime, APadrao[i]);
        if (semZero && elemento.size() == 2 && elemento != u"yy") elemento.remove_suffix(1);
        AMontagem.JuntarElemento(elemento);
    }
}

std::u16string DeElementoWindows(char16_t ALetra, std::size_t AQuantidade) {
    switch (ALetra) {
        case u'd':
        case u'M':
            return std::u16string(std::min<std::size_t>(AQuantidade, 4), ALetra == u'M' ? u'm' : u'd');
        case u'y':
            return AQuantidade <= 2 ? u"yy" : u"yyyy";
        case u'h':
        case u'H':
            return std::u16string(std::min<std::size_t>(AQuantidade, 2), u'h');
        case u'm':
            return std::u16string(std::min<std::size_t>(AQuantidade, 2), u'n');
        case u's':
            return std::u16string(std::min<std::size_t>(AQuantidade, 2), u's');
        case u't':
            return u"ampm";
        default:
            return {};
    }
}

}  // namespace

TPadraoLido DePadraoStrftime(std::u16string_view APadrao, char16_t AMarca) {
    TMontagem montagem;
    LerStrftime(montagem, APadrao);
    return montagem.Montar(AMarca);
}

TPadraoLido DePadraoWindows(std::u16string_view APadrao, char16_t AMarca) {
    TMontagem montagem;
    bool literal = false;
    for (std::size_t i = 0; i < APadrao.size();) {
        const char16_t c = APadrao[i];
        if (c == u'\'') {
            // Two together are the quote itself.
            if (APadrao.substr(i, 2) == u"''")
                montagem.JuntarLiteral(APadrao[i++]);
            else
                literal = !literal;
            ++i;
        } else if (literal || !EhLetraAscii(c)) {
            montagem.JuntarLiteral(c);
            ++i;
        } else {
            const std::size_t fim = std::min(APadrao.find_first_not_of(c, i), APadrao.size());
            montagem.JuntarElemento(DeElementoWindows(c, fim - i));
            i = fim;
        }
    }
    return montagem.Montar(AMarca);
}

std::u16string RetirarSegundos(std::u16string APadrao) {
    for (const std::u16string_view segundos : {u":ss", u":s"})
        if (const std::size_t onde = APadrao.find(segundos); onde != std::u16string::npos)
            return APadrao.erase(onde, segundos.size());
    return APadrao;
}

}  // namespace OryUtils::Interno
