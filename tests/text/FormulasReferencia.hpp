#pragma once

#include "oryutils/characters/Caixa.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/text/OryUtilsFormulas.hpp"

#include <cmath>
#include <map>
#include <string>

/// The evaluation of formulas as it is defined: one text, rewritten piece by piece. Slow, and that is its merit.
class TFormulaReescrita {
public:
    std::map<std::u16string, std::u16string> Variaveis;  // by name in upper case
    OryUtils::TMetodoArredondamento Ajuste = OryUtils::maNenhum;
    std::uint8_t Casas = 2;
    std::u16string Resolvida;

    OryUtils::Extended Calcular(std::u16string f) {
        f = OryUtils::MaiusculaDe(f);
        std::erase(f, u' ');
        std::erase(f, u'.');
        ResolverFuncoes(f);
        ResolverVariaveis(f);
        Resolvida = f;
        for (std::size_t p; (p = f.find(u"--")) != f.npos;) f.replace(p, 2, u"+");
        ResolverParenteses(f);
        return CalcularExpressao(f);
    }

private:
    static OryUtils::Extended Ler(const std::u16string& t) {
        return t.empty() || t == u"-" ? 0 : OryUtils::TextoParaExtended(t);
    }

    OryUtils::Extended Ajustar(OryUtils::Extended v) const {
        using M = OryUtils::TOryUtilsMatematica;
        if (Ajuste == OryUtils::maMatematico) return M::Arredondar(v, Ajuste, Casas, std::uint8_t(Casas + 1));
        if (Ajuste == OryUtils::maTruncamento) return M::Arredondar(v, Ajuste, Casas, 10);
        return v;
    }

    OryUtils::Extended Funcao(std::size_t n, const std::u16string& arg) {
        if (n < 5) {
            const auto x = Calcular(arg);
            switch (n) {
                case 0:
                    return std::sqrt(x);
                case 1:
                    return std::log(x) / std::log(10.0L);
                case 2:
                    return std::log(x);
                case 3:
                    return x - std::fmod(x, 1.0L);
                default:
                    return std::abs(x);
            }
        }
        const auto s = arg.find(u';');
        if (s == arg.npos) throw OryUtils::Exception(u"São necessários dois argumentos para calcular a função.");
        const auto a = Calcular(arg.substr(0, s));
        const auto b = Calcular(arg.substr(s + 1));
        if (n == 5) return a >= b ? a : b;
        if (n == 6) return a > b ? b : a;
        return OryUtils::TOryUtilsFormulas::GetExponencial(a, b);
    }

    void ResolverFuncoes(std::u16string& f) {
        const std::u16string nomes[] = {u"SQR(", u"LOG(", u"LN(", u"INT(", u"ABS(", u"MAX(", u"MIN(", u"EXP("};
        for (std::size_t n = 0; n < 8; ++n) {
            for (std::size_t p; (p = f.find(nomes[n])) != f.npos;) {
                const std::size_t ini = p + nomes[n].size();
                std::size_t fim = ini;
                for (int nivel = 1; fim < f.size(); ++fim) {
                    nivel += (f[fim] == u'(') - (f[fim] == u')');
                    if (nivel == 0) break;
                }
                const auto valor = Funcao(n, f.substr(ini, fim - ini));
                f = f.substr(0, p) + OryUtils::ExtendedParaTexto(valor) + (fim < f.size() ? f.substr(fim + 1) : u"");
            }
        }
    }

    void ResolverVariaveis(std::u16string& f) {
        const std::size_t limite = 64 * f.size() + 64 * 1024;
        for (std::size_t p = 0; p < f.size(); ++p) {
            while (p < f.size() && OryUtils::TOryUtilsFormulas::EhVariavel(f[p])) {
                std::size_t fim = p;
                while (fim < f.size() &&
                       (OryUtils::TOryUtilsFormulas::EhVariavel(f[fim]) || (f[fim] >= u'0' && f[fim] <= u'9') ||
                        f[fim] == OryUtils::FormatSettings().DecimalSeparator))
                    ++fim;
                const auto nome = f.substr(p, fim - p);
                const auto v = Variaveis.find(nome);
                if (v == Variaveis.end()) throw OryUtils::Exception(u"Variável '" + nome + u"' não existe.");
                if (f.size() > limite) throw OryUtils::Exception(u"Variáveis da fórmula sem fim.");
                f.replace(p, fim - p, OryUtils::ExtendedParaTexto(Ajustar(OryUtils::TextoParaExtended(v->second))));
            }
        }
    }

    void ResolverParenteses(std::u16string& f) {
        for (std::size_t p; (p = f.find(u'(')) != f.npos;) {
            std::size_t fim = p + 1;
            for (; fim < f.size() && f[fim] != u')'; ++fim)
                if (f[fim] == u'(') p = fim;
            const auto valor = CalcularExpressao(f.substr(p + 1, fim - p - 1));
            f = f.substr(0, p) + OryUtils::ExtendedParaTexto(valor) + (fim < f.size() ? f.substr(fim + 1) : u"");
        }
    }

    static bool EhOperador(const std::u16string& f, std::size_t i) {
        if (f[i] == u'-') return i > 0 && f[i - 1] != u'*' && f[i - 1] != u'/' && f[i - 1] != u'+';
        return f[i] == u'*' || f[i] == u'/' || f[i] == u'+';
    }

    OryUtils::Extended CalcularExpressao(std::u16string f) const {
        for (const char16_t op : {u'*', u'/', u'+', u'-'}) {
            while (true) {
                std::size_t p = 0;
                while (p < f.size() && !(f[p] == op && EhOperador(f, p))) ++p;
                if (p == f.size()) break;
                std::size_t ini = p;
                while (ini > 0 && !EhOperador(f, ini - 1)) --ini;
                std::size_t fim = p + 1;
                while (fim < f.size() && !EhOperador(f, fim)) ++fim;
                const auto a = Ler(f.substr(ini, p - ini));
                const auto b = Ler(f.substr(p + 1, fim - p - 1));
                const auto r = op == u'*' ? a * b : op == u'/' ? (b == 0 ? 0 : a / b) : op == u'+' ? a + b : a - b;
                f.replace(ini, fim - ini, OryUtils::ExtendedParaTexto(Ajustar(r)));
            }
        }
        return Ler(f);
    }
};
