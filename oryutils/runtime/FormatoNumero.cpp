#include "oryutils/runtime/FormatoNumero.hpp"

#include "oryutils/runtime/interno/QuinzeDigitos.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

namespace OryUtils {
namespace {

constexpr int CMaisDigitos = 18;
using TPosicao = std::int64_t;

enum TElemento : int { elLugar, elLugarZero, elPonto, elMilhares, elExpoente, elLiteral, elSecao };

/// Calls AReceber(element, its text) for each element of AFormato from AInicio, until that answers false. The result is
/// where it stopped.
template <typename TReceber>
std::size_t Percorrer(std::u16string_view AFormato, std::size_t AInicio, TReceber AReceber) {
    for (std::size_t i = AInicio; i < AFormato.size();) {
        const char16_t c = AFormato[i];
        TElemento elemento = elLiteral;
        std::u16string_view texto = AFormato.substr(i, 1);
        std::size_t seguinte = i + 1;
        if (c == u'#') {
            elemento = elLugar;
        } else if (c == u'0') {
            elemento = elLugarZero;
        } else if (c == u'.') {
            elemento = elPonto;
        } else if (c == u',') {
            elemento = elMilhares;
        } else if (c == u';') {
            elemento = elSecao;
        } else if (c == u'\'' || c == u'"') {
            const std::size_t fim = std::min(AFormato.find(c, i + 1), AFormato.size());
            texto = AFormato.substr(i + 1, fim - i - 1);
            seguinte = fim + 1;
        } else if ((c == u'e' || c == u'E') && seguinte < AFormato.size() &&
                   (AFormato[seguinte] == u'+' || AFormato[seguinte] == u'-')) {
            elemento = elExpoente;
            seguinte = std::min(AFormato.find_first_not_of(u'0', i + 2), AFormato.size());
            texto = AFormato.substr(i, seguinte - i);
        }
        if (!AReceber(elemento, texto)) return i;
        i = seguinte;
    }
    return AFormato.size();
}

/// A section and what its places ask for. Places are counted from the left, from 0.
struct TSecao {
    std::u16string_view Texto;
    TPosicao Lugares = 0;
    TPosicao Inteiros = -1;  // of them before the point; all when there is none
    TPosicao PrimeiroZero = -1;
    TPosicao UltimoZero = -1;
    bool Milhares = false;
    bool Cientifica = false;

    TPosicao MinimoDeInteiros() const { return PrimeiroZero < 0 ? 0 : std::max<TPosicao>(Inteiros - PrimeiroZero, 0); }
    TPosicao MinimoDeDecimais() const { return std::max<TPosicao>(UltimoZero + 1 - Inteiros, 0); }
};

TSecao LerSecao(std::u16string_view AFormato, std::size_t AInicio) {
    TSecao secao;
    const std::size_t fim = Percorrer(AFormato, AInicio, [&](TElemento AElemento, std::u16string_view) {
        if (AElemento == elLugarZero) {
            if (secao.PrimeiroZero < 0) secao.PrimeiroZero = secao.Lugares;
            secao.UltimoZero = secao.Lugares;
        }
        if (AElemento == elLugar || AElemento == elLugarZero) ++secao.Lugares;
        if (AElemento == elPonto && secao.Inteiros < 0) secao.Inteiros = secao.Lugares;
        secao.Milhares |= AElemento == elMilhares;
        secao.Cientifica |= AElemento == elExpoente;
        return AElemento != elSecao;
    });
    if (secao.Inteiros < 0) secao.Inteiros = secao.Lugares;
    secao.Texto = AFormato.substr(AInicio, fim - AInicio);
    return secao;
}

enum TSinal : int { siPositivo, siNegativo, siZero };

/// The sections of positive, negative and zero numbers, in this order.
struct TSecoes {
    std::array<TSecao, 3> Itens;

    explicit TSecoes(std::u16string_view AFormato) {
        std::size_t inicio = 0;
        for (TSecao& secao : Itens) {
            if (inicio > AFormato.size()) break;
            secao = LerSecao(AFormato, inicio);
            inicio += secao.Texto.size() + 1;
        }
    }
    const TSecao& Buscar(TSinal ASinal) const {
        const TSecao& propria = Itens[static_cast<std::size_t>(ASinal)];
        return propria.Texto.empty() ? Itens.front() : propria;
    }
};

/// 0.d1d2d3... times 10 to Ordem, without zeros at the end; no digits for zero.
struct TDigitosDoNumero {
    std::array<char16_t, CMaisDigitos> Digitos{};
    TPosicao Quantidade = 0;
    TPosicao Ordem = 0;

    explicit TDigitosDoNumero(Extended AMagnitude) {
        if (AMagnitude == 0) return;
        TDigitosDecimais decimal = SepararDigitos(AMagnitude, CMaisDigitos);
        for (std::size_t i = Digitos.size(); i-- > 0; decimal.Digitos /= 10)
            Digitos[i] = static_cast<char16_t>(u'0' + decimal.Digitos % 10);
        Quantidade = CMaisDigitos;
        Ordem = decimal.Ordem + 1;
        Aparar();
    }
    /// Keeps the first AQuantidade digits, halves up.
    void Arredondar(TPosicao AQuantidade) {
        if (AQuantidade >= Quantidade) return;
        const bool sobe = AQuantidade >= 0 && (*this)[AQuantidade] >= u'5';
        Quantidade = std::max<TPosicao>(AQuantidade, 0);
        if (sobe) {
            while (Quantidade > 0 && (*this)[Quantidade - 1] == u'9') --Quantidade;
            if (Quantidade > 0) {
                ++Digitos[static_cast<std::size_t>(Quantidade - 1)];
            } else {
                Digitos.front() = u'1';
                Quantidade = 1;
                ++Ordem;
            }
        }
        Aparar();
    }
    char16_t operator[](TPosicao APosicao) const { return Digitos[static_cast<std::size_t>(APosicao)]; }

private:
    void Aparar() {
        while (Quantidade > 0 && (*this)[Quantidade - 1] == u'0') --Quantidade;
        if (Quantidade == 0) Ordem = 0;
    }
};

class TEscrita {
public:
    TEscrita(const TSecao& ASecao, const TDigitosDoNumero& ANumero, const TFormatSettings& AFormatos,
             std::u16string& ASaida)
        : FSecao(ASecao),
          FNumero(ANumero),
          FFormatos(AFormatos),
          FSaida(ASaida),
          // In scientific notation the point moves: the first digit goes to the first place.
          FOrdem(ASecao.Cientifica ? ASecao.Inteiros : ANumero.Ordem) {}

    void Escrever() {
        Percorrer(FSecao.Texto, 0, [&](TElemento AElemento, std::u16string_view ATexto) {
            if (AElemento == elLugar || AElemento == elLugarZero)
                EscreverLugar();
            else if (AElemento == elExpoente)
                EscreverExpoente(ATexto);
            else if (AElemento == elLiteral)
                FSaida += ATexto;
            return true;
        });
    }

private:
    /// The next place; the first one also writes the digits that have none.
    void EscreverLugar() {
        // Weights: 10 to (peso - 1). The units have 1, the first decimal 0.
        TPosicao peso = FSecao.Inteiros - FLugar;
        if (FLugar == 0)
            for (TPosicao i = FOrdem; i > peso; --i) EscreverDigito(i);
        EscreverDigito(peso);
        ++FLugar;
    }

    void EscreverDigito(TPosicao APeso) {
        const TPosicao indice = FOrdem - APeso;  // into the digits
        const bool tem = indice >= 0 && indice < FNumero.Quantidade;
        if (!tem) {
            const bool inteiro = APeso > 0;
            const bool preso = inteiro ? APeso <= FSecao.MinimoDeInteiros() : 1 - APeso <= FSecao.MinimoDeDecimais();
            // A zero of the number itself: between its first digit and the units, or between the point and the first
            // decimal digit.
            const bool dele = FNumero.Quantidade > 0 && (inteiro ? indice >= 0 : indice < 0);
            if (!preso && !dele) return;
        }
        if (APeso <= 0 && !FSeparou) {
            FSeparou = true;
            if (FFormatos.DecimalSeparator) FSaida += FFormatos.DecimalSeparator;
        }
        FSaida += tem ? FNumero[indice] : u'0';
        if (FSecao.Milhares && APeso > 1 && APeso % 3 == 1 && FFormatos.ThousandSeparator)
            FSaida += FFormatos.ThousandSeparator;
    }

    void EscreverExpoente(std::u16string_view ATexto) {
        const TPosicao expoente = FNumero.Quantidade == 0 ? 0 : FNumero.Ordem - FSecao.Inteiros;
        FSaida += ATexto[0];
        if (expoente < 0)
            FSaida += u'-';
        else if (ATexto[1] == u'+')
            FSaida += u'+';
        const std::size_t minimo = std::min<std::size_t>(ATexto.size() - 2, 4);
        const std::u16string digitos = InteiroParaTexto(std::abs(expoente));
        if (digitos.size() < minimo) FSaida.append(minimo - digitos.size(), u'0');
        FSaida += digitos;
    }

    const TSecao& FSecao;
    const TDigitosDoNumero& FNumero;
    const TFormatSettings& FFormatos;
    std::u16string& FSaida;
    TPosicao FOrdem;
    TPosicao FLugar = 0;
    bool FSeparou = false;
};

}  // namespace

std::u16string FormatarNumero(std::u16string_view AFormato, Extended AValor, const TFormatSettings& AFormatos) {
    const TSecoes secoes(AFormato);
    TSinal sinal = AValor < 0 ? siNegativo : AValor > 0 ? siPositivo : siZero;
    const TSecao* secao = &secoes.Buscar(sinal);
    if (!std::isfinite(AValor) || secao->Texto.empty()) return ExtendedParaTexto(AValor, AFormatos);

    TDigitosDoNumero numero(std::abs(AValor));
    if (!secao->Cientifica && numero.Ordem > CMaisDigitos) return ExtendedParaTexto(AValor, AFormatos);
    numero.Arredondar(secao->Cientifica ? std::clamp<TPosicao>(secao->Lugares, 1, CMaisDigitos)
                                        : numero.Ordem + secao->Lugares - secao->Inteiros);
    if (numero.Quantidade == 0) {
        sinal = siZero;
        secao = &secoes.Buscar(sinal);
        if (secao->Texto.empty()) return ExtendedParaTexto(0, AFormatos);
    }
    std::u16string saida;
    if (sinal == siNegativo && secao == &secoes.Buscar(siPositivo)) saida += u'-';
    TEscrita(*secao, numero, AFormatos, saida).Escrever();
    return saida;
}

}  // namespace OryUtils
