// Operators and parentheses: from a text without names to one number.
#include "oryutils/runtime/interno/PrecisaoPlena.hpp"
#include "oryutils/text/OryUtilsFormulas.hpp"

#include <algorithm>
#include <cmath>
#include <list>

namespace OryUtils {
namespace {

constexpr std::u16string_view COperadores = u"*/+-";  // in the order of TOperCalc
constexpr char16_t CSemOperador = 0;

constexpr bool EhOperadorExcetoSubtracao(char16_t c) noexcept { return c == u'*' || c == u'/' || c == u'+'; }

Extended Operar(TOperCalc AOperador, Extended AUm, Extended AOutro) noexcept {
    if (!TemPrecisaoPlena()) return ComPrecisaoPlena([&] { return Operar(AOperador, AUm, AOutro); });
    switch (AOperador) {
        case ocMultiplicacao:
            return AUm * AOutro;
        case ocDivisao:
            return AOutro == 0 ? 0 : AUm / AOutro;
        case ocSoma:
            return AUm + AOutro;
        default:
            return AUm - AOutro;
    }
}

/// An operand with the operator before it; the first one has none. Text that is no number waits in Texto: it is an
/// error only when an operator needs it.
struct TParcela {
    char16_t Operador;
    Extended Valor = 0;
    std::u16string_view Texto{};

    Extended BuscarValor() const { return Texto.empty() ? Valor : TextoParaExtended(Texto); }
};

/// Whether the text of AValor, behind AOperador, is one number to the operators. They take a negative sign behind a
/// "-", and the sign of an exponent, for a subtraction.
bool EhUmNumeroSo(char16_t AOperador, Extended AValor) noexcept {
    constexpr Extended CMenorSemExpoente = 1e-4L;
    if (AValor < 0 && AOperador == u'-') return false;
    return AValor == 0 || (std::abs(AValor) >= CMenorSemExpoente && std::isfinite(AValor));
}

/// The operands of a text without parentheses. Borrows the text.
class TParcelas {
public:
    explicit TParcelas(std::u16string_view ATexto) { Acrescentar(CSemOperador, ATexto); }

    /// Resolves every operator of a kind, from the left to the right. AOperacao answers the value of two operands.
    template <typename TOperacao>
    void Resolver(char16_t AOperador, TOperacao AOperacao) {
        const auto ehDele = [&](const TParcela& AParcela) { return AParcela.Operador == AOperador; };
        if (std::none_of(FParcelas.begin(), FParcelas.end(), ehDele)) return;
        std::vector<TParcela> anteriores;
        anteriores.swap(FParcelas);
        FParcelas.reserve(anteriores.size());
        for (const TParcela& direita : anteriores) {
            if (!ehDele(direita)) {
                FParcelas.push_back(direita);
                continue;
            }
            // The first subtraction is always next. A result with an exponent has left "1E" before it.
            const Extended um = (AOperador == u'-' ? FParcelas.front() : FParcelas.back()).BuscarValor();
            ReporUltima(AOperacao(um, direita.BuscarValor()));
        }
    }
    /// The value when no operator is left.
    Extended BuscarValor() const { return FParcelas.front().BuscarValor(); }

private:
    /// Appends what ATexto, which stands behind AOperador, is to the operators: one operand, and another one behind
    /// each operator in it.
    void Acrescentar(char16_t AOperador, std::u16string_view ATexto) {
        std::size_t inicio = 0;
        for (std::size_t p = 0; p < ATexto.size(); ++p) {
            const bool ehSinal = p == inicio && AOperador != u'-';
            if (!EhOperadorExcetoSubtracao(ATexto[p]) && (ATexto[p] != u'-' || ehSinal)) continue;
            AcrescentarUma(AOperador, ATexto.substr(inicio, p - inicio));
            AOperador = ATexto[p];
            inicio = p + 1;
        }
        AcrescentarUma(AOperador, ATexto.substr(inicio));
    }
    void AcrescentarUma(char16_t AOperador, std::u16string_view ATexto) {
        FParcelas.push_back({AOperador});
        if (ATexto.empty() || ATexto == u"-") return;
        if (const auto valor = TentarTextoParaExtended(ATexto))
            FParcelas.back().Valor = *valor;
        else
            FParcelas.back().Texto = ATexto;
    }
    /// Puts the text of AValor in the place of the last operand.
    void ReporUltima(Extended AValor) {
        TParcela& ultima = FParcelas.back();
        const char16_t operador = ultima.Operador;
        const Extended lido = ArredondarPara15Digitos(AValor);
        if (EhUmNumeroSo(operador, lido)) {
            ultima = {operador, lido};
            return;
        }
        FParcelas.pop_back();
        Acrescentar(operador, FTextos.emplace_back(ExtendedParaTexto(AValor)));
    }

    std::vector<TParcela> FParcelas;
    std::list<std::u16string> FTextos;  // of results that are more than one number
};

}  // namespace

Extended TOryUtilsFormulas::CalcularExpressao(std::u16string_view ATexto) {
    if (!TemPrecisaoPlena()) return ComPrecisaoPlena([&] { return CalcularExpressao(ATexto); });
    TParcelas parcelas(ATexto);
    for (const TOperCalc operacao : {ocMultiplicacao, ocDivisao, ocSoma, ocSubtracao})
        parcelas.Resolver(COperadores[operacao], [&](Extended AUm, Extended AOutro) {
            return AjustarValorVariavel(Operar(operacao, AUm, AOutro));
        });
    return parcelas.BuscarValor();
}

void TOryUtilsFormulas::ResolverParenteses(std::u16string& AFormula) {
    if (!TemPrecisaoPlena()) return ComPrecisaoPlena([&] { ResolverParenteses(AFormula); });
    if (AFormula.find(u'(') == AFormula.npos) return;
    std::u16string resolvida;
    std::vector<std::size_t> abertos;  // where in resolvida the text of each begins
    const auto fechar = [&] {
        const std::size_t inicio = abertos.back();
        abertos.pop_back();
        const Extended valor = CalcularExpressao(std::u16string_view(resolvida).substr(inicio));
        resolvida.replace(inicio, resolvida.npos, ExtendedParaTexto(valor));
    };
    for (const char16_t c : AFormula) {
        if (c == u'(')
            abertos.push_back(resolvida.size());
        else if (c == u')' && !abertos.empty())
            fechar();
        else
            resolvida += c;
    }
    while (!abertos.empty()) fechar();
    AFormula = std::move(resolvida);
}

bool TOryUtilsFormulas::EhOperador(std::u16string_view ATexto, std::size_t APosicao) {
    if (APosicao == 0 || APosicao > ATexto.size()) return false;
    const char16_t c = ATexto[APosicao - 1];
    if (c == u'-') return APosicao >= 2 && !EhOperadorExcetoSubtracao(ATexto[APosicao - 2]);
    return EhOperadorExcetoSubtracao(c);
}

std::size_t TOryUtilsFormulas::GetPosOperador(TOperCalc AOperador, std::u16string_view ATexto) {
    for (std::size_t p = 1; p <= ATexto.size(); ++p)
        if (ATexto[p - 1] == COperadores[AOperador] && EhOperador(ATexto, p)) return p;
    return 0;
}

std::u16string TOryUtilsFormulas::GetPrimeiroArgumento(std::u16string_view ATexto, std::size_t APosicao) {
    if (APosicao == 0 || APosicao > ATexto.size()) return {};
    std::size_t antes = APosicao - 1;
    while (antes > 0 && !EhOperador(ATexto, antes)) --antes;
    return std::u16string(ATexto.substr(antes, APosicao - 1 - antes));
}

std::u16string TOryUtilsFormulas::GetSegundoArgumento(std::u16string_view ATexto, std::size_t APosicao) {
    if (APosicao == 0 || APosicao > ATexto.size()) return {};
    std::size_t depois = APosicao + 1;
    while (depois <= ATexto.size() && !EhOperador(ATexto, depois)) ++depois;
    return std::u16string(ATexto.substr(APosicao, depois - 1 - APosicao));
}

Extended TOryUtilsFormulas::GetSoma(Extended AUm, Extended AOutro) noexcept { return Operar(ocSoma, AUm, AOutro); }

Extended TOryUtilsFormulas::GetSubtracao(Extended AUm, Extended AOutro) noexcept {
    return Operar(ocSubtracao, AUm, AOutro);
}

Extended TOryUtilsFormulas::GetMultiplicacao(Extended AUm, Extended AOutro) noexcept {
    return Operar(ocMultiplicacao, AUm, AOutro);
}

Extended TOryUtilsFormulas::GetDivisao(Extended ADividendo, Extended ADivisor) noexcept {
    return Operar(ocDivisao, ADividendo, ADivisor);
}

}  // namespace OryUtils
