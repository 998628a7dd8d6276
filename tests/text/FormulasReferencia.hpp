#pragma once

#include "oryutils/characters/Caixa.hpp"
#include "oryutils/characters/Utf.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/text/OryUtilsFormulas.hpp"

#include <algorithm>
#include <cmath>
#include <map>
#include <string>

namespace OryUtils {

/// The value as text, or the class and the message of the error.
template <typename TAvaliacao>
std::string Descrever(TAvaliacao AAvaliacao) {
    try {
        return ParaUtf8(ExtendedParaTexto(AAvaliacao()));
    } catch (const Exception& e) {
        return std::string(e.GetNomeDaClasse()) + ": " + e.what();
    }
}

/// The evaluation of formulas as it is defined: one text, rewritten piece by piece. Slow, and that is its merit. The
/// pieces that find operators and their arguments are the public ones, which the evaluation of the library does not
/// use.
class TFormulaReescrita {
public:
    std::map<std::u16string, std::u16string> Variaveis;  // by name in upper case
    TMetodoArredondamento Ajuste = maNenhum;
    std::uint8_t Casas = 2;
    std::u16string Resolvida;

    Extended Calcular(std::u16string f) {
        f = MaiusculaDe(f);
        std::erase(f, u' ');
        std::erase(f, u'.');
        ResolverFuncoes(f);
        ResolverVariaveis(f);
        Resolvida = f;
        for (std::size_t p; (p = f.find(u"--")) != f.npos;) f.replace(p, 2, u"+");
        for (std::size_t p; (p = f.find(u'(')) != f.npos;) {
            const std::size_t fim = std::min(f.find(u')', p), f.size());
            p = f.rfind(u'(', fim);
            Repor(f, p, fim + 1, CalcularExpressao(f.substr(p + 1, fim - p - 1)));
        }
        return CalcularExpressao(f);
    }

private:
    using F = TOryUtilsFormulas;
    struct TFuncao {
        std::u16string_view Nome;
        bool Dois;
        Extended (*Valor)(Extended, Extended);
    };
    static constexpr TFuncao CFuncoes[] = {
        {u"SQR(", false, [](Extended x, Extended) { return std::sqrt(x); }},
        {u"LOG(", false, [](Extended x, Extended) { return std::log(x) / std::log(10.0L); }},
        {u"LN(", false, [](Extended x, Extended) { return std::log(x); }},
        {u"INT(", false, [](Extended x, Extended) { return x - std::fmod(x, 1.0L); }},
        {u"ABS(", false, [](Extended x, Extended) { return std::abs(x); }},
        {u"MAX(", true, [](Extended a, Extended b) { return a >= b ? a : b; }},
        {u"MIN(", true, [](Extended a, Extended b) { return a > b ? b : a; }},
        {u"EXP(", true, [](Extended a, Extended b) { return F::GetExponencial(a, b); }},
    };

    /// Puts the text of AValor in the place of what stands from AInicio to before AFim.
    static void Repor(std::u16string& f, std::size_t AInicio, std::size_t AFim, Extended AValor) {
        f.replace(AInicio, AFim - AInicio, ExtendedParaTexto(AValor));
    }

    void ResolverFuncoes(std::u16string& f) {
        for (const TFuncao& funcao : CFuncoes) {
            for (std::size_t p; (p = f.find(funcao.Nome)) != f.npos;) {
                const std::size_t inicio = p + funcao.Nome.size();
                std::size_t fim = inicio;
                for (int nivel = 1; fim < f.size(); ++fim) {
                    nivel += (f[fim] == u'(') - (f[fim] == u')');
                    if (nivel == 0) break;
                }
                const std::u16string todo = f.substr(inicio, fim - inicio);
                const auto [um, outro] = funcao.Dois ? F::GetArgumentos(todo) : std::pair(todo, std::u16string());
                const Extended primeiro = Calcular(um);
                Repor(f, p, fim + 1, funcao.Valor(primeiro, Calcular(outro)));
            }
        }
    }

    void ResolverVariaveis(std::u16string& f) {
        const std::size_t limite = 64 * f.size() + 64 * 1024;
        const auto ehDoNome = [](char16_t c) {
            return F::EhVariavel(c) || (c >= u'0' && c <= u'9') || c == FormatSettings().DecimalSeparator;
        };
        for (std::size_t p = 0; p < f.size(); ++p) {
            while (p < f.size() && F::EhVariavel(f[p])) {
                std::size_t fim = p;
                while (fim < f.size() && ehDoNome(f[fim])) ++fim;
                const auto nome = f.substr(p, fim - p);
                const auto v = Variaveis.find(nome);
                if (v == Variaveis.end()) throw Exception(u"Variável '" + nome + u"' não existe.");
                if (f.size() > limite) throw Exception(u"Variáveis da fórmula sem fim.");
                Repor(f, p, fim, Ajustar(TextoParaExtended(v->second)));
            }
        }
    }

    Extended CalcularExpressao(std::u16string f) const {
        for (const TOperCalc op : {ocMultiplicacao, ocDivisao, ocSoma, ocSubtracao}) {
            for (std::size_t p; (p = F::GetPosOperador(op, f)) != 0;) {
                const std::u16string um = F::GetPrimeiroArgumento(f, p), outro = F::GetSegundoArgumento(f, p);
                const Extended a = Ler(um), b = Ler(outro);
                const Extended quociente = b == 0 ? 0 : a / b;
                const Extended resultados[] = {a * b, quociente, a + b, a - b};
                Repor(f, p - 1 - um.size(), p + outro.size(), Ajustar(resultados[op]));
            }
        }
        return Ler(f);
    }

    Extended Ajustar(Extended v) const {
        using M = TOryUtilsMatematica;
        if (Ajuste == maMatematico) return M::Arredondar(v, Ajuste, Casas, std::uint8_t(Casas + 1));
        return Ajuste == maTruncamento ? M::Arredondar(v, Ajuste, Casas, 10) : v;
    }

    static Extended Ler(const std::u16string& t) { return t.empty() || t == u"-" ? 0 : TextoParaExtended(t); }
};

}  // namespace OryUtils
