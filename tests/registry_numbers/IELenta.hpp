#pragma once

#include <string>
#include <vector>

/// The rules of the state registrations as texts, step by step: format the number, compute the digits, build the
/// expected text, compare. Slow and plain; the library must agree with it on everything.
namespace IELenta {

using TTexto = std::u16string;
using TPesos = std::vector<int>;

inline TTexto Zeros(const TTexto& AIE, std::size_t ATamanho) {
    TTexto numero = AIE.find(u'P') == AIE.npos ? AIE : u"0";
    while (numero.size() > 1 && numero[0] == u'0') numero.erase(0, 1);
    while (numero.size() < ATamanho) numero.insert(0, 1, u'0');
    return numero;
}
inline TTexto Numero(int AValor) {
    TTexto texto;
    for (const char c : std::to_string(AValor)) texto += static_cast<char16_t>(c);
    return texto;
}
inline int Somar(const TPesos& APesos, const TTexto& ABase) {
    int soma = 0;
    for (std::size_t i = 0; i < APesos.size(); ++i) soma += (ABase[i] - u'0') * APesos[i];
    return soma;
}
inline int P(int r) { return r < 2 ? 0 : 11 - r; }
inline int E(int r) { return r == 1 ? 0 : r == 0 ? 1 : 11 - r; }
inline const TPesos CNove{9, 8, 7, 6, 5, 4, 3, 2};

inline bool Nove(
    const TTexto& AIE, int (*ADigito)(int soma) = [](int s) { return P(s % 11); }) {
    const TTexto base = Zeros(AIE, 9);
    return AIE == base.substr(0, 8) + Numero(ADigito(Somar(CNove, base)));
}
inline bool NoveComInicio(const TTexto& AIE, const TTexto& AInicio) {
    return Zeros(AIE, 9).starts_with(AInicio) && Nove(AIE);
}
inline int VezesDez(int s) { return s * 10 % 11 == 10 ? 0 : s * 10 % 11; }

inline bool Treze(const TTexto& AIE) {  // AC and DF
    const TTexto base = Zeros(AIE, 13);
    const int d1 = P(Somar({4, 3, 2, 9, 8, 7, 6, 5, 4, 3, 2}, base) % 11);
    const TTexto com_d1 = base.substr(0, 11) + Numero(d1);
    // The second digit reads digit 12 of the base itself.
    const int d2 = P(Somar({5, 4, 3, 2, 9, 8, 7, 6, 5, 4, 3, 2}, base) % 11);
    return AIE == com_d1 + Numero(d2);
}

inline bool AP(const TTexto& AIE) {
    if (!AIE.starts_with(u"03")) return false;
    const TTexto base = Zeros(AIE, 9);
    int b = 0;
    for (std::size_t i = 0; i < 8; ++i) b = b * 10 + (base[i] - u'0');
    int p = 999, d = 999;
    if (b >= 3000001 && b <= 3017000) p = 5, d = 0;
    if (b >= 3017001 && b <= 3019022) p = 9, d = 1;
    if (b >= 3019023) p = 0, d = 0;
    const int v = 11 - (p + Somar(CNove, base)) % 11;
    return AIE == base.substr(0, 8) + Numero(v == 10 ? 0 : v == 11 ? d : v);
}

inline bool BA(TTexto AIE) {
    for (const std::size_t tamanho : {8U, 9U}) {
        AIE = Zeros(AIE, tamanho);
        const TTexto inicio = AIE.substr(0, tamanho - 2);
        const bool modulo11 = AIE[0] == u'6' || AIE[0] == u'7' || AIE[0] == u'9';
        const auto digito = [&](int s) { return modulo11 ? P(s % 11) : s % 10 < 1 ? 0 : 10 - s % 10; };
        TPesos pesos{7, 6, 5, 4, 3, 2};
        if (tamanho == 9) pesos.insert(pesos.begin(), 8);
        const TTexto d2 = Numero(digito(Somar(pesos, inicio)));
        pesos.insert(pesos.begin(), pesos[0] + 1);
        const TTexto d1 = Numero(digito(Somar(pesos, inicio + d2)));
        if (AIE == inicio + d1 + d2) return true;
    }
    return false;
}

inline bool GO(const TTexto& AIE) {
    const TTexto base = Zeros(AIE, 9);
    const long numero = std::stol(std::string(base.begin(), base.begin() + 8));
    const int r = Somar(CNove, base) % 11;
    const int d = r == 0 ? 0 : r == 1 ? numero >= 10103105 && numero <= 10119997 : 11 - r;
    return AIE == base.substr(0, 8) + Numero(d);
}

inline bool MG(const TTexto& AIE) {
    const TTexto base = Zeros(AIE, 13);
    const TTexto t = base.substr(0, 3) + u"0" + base.substr(3, 8);
    TTexto produtos;
    for (std::size_t i = 0; i < t.size(); ++i) produtos += Numero((t[i] - u'0') * (i % 2 == 0 ? 1 : 2));
    int soma = 0;
    for (const char16_t c : produtos) soma += c - u'0';
    int d1 = 0;
    while ((soma + d1) % 10 != 0) ++d1;
    const int d2 = P(Somar({3, 2, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2}, base) % 11);
    return AIE == base.substr(0, 11) + Numero(d1) + Numero(d2);
}

inline bool PE(const TTexto& AIE) {
    const TTexto base14 = Zeros(AIE, 14);
    if (base14.starts_with(u"18") &&
        AIE == base14.substr(0, 13) + Numero(E(Somar({5, 4, 3, 2, 1, 9, 8, 7, 6, 5, 4, 3, 2}, base14) % 11)))
        return true;
    const TTexto base = Zeros(AIE, 9);
    return AIE ==
           base.substr(0, 7) + Numero(P(Somar({8, 7, 6, 5, 4, 3, 2}, base) % 11)) + Numero(P(Somar(CNove, base) % 11));
}

inline bool RO(const TTexto& AIE) {
    const TTexto base14 = Zeros(AIE, 14);
    if (AIE == base14.substr(0, 13) + Numero(E(Somar({6, 5, 4, 3, 2, 9, 8, 7, 6, 5, 4, 3, 2}, base14) % 11)))
        return true;
    const TTexto base = Zeros(AIE, 9);
    return AIE == base.substr(0, 8) + Numero(E(Somar({6, 5, 4, 3, 2}, base.substr(3)) % 11));
}

inline bool SP(const TTexto& AIE) {
    const auto ultimo = [](int r) { return r % 10; };
    const TPesos pesos{1, 3, 4, 5, 6, 7, 8, 10};
    if (AIE[0] == u'P') {
        const TTexto base = Zeros(AIE.substr(1), 12);
        return AIE == u"P" + base.substr(0, 8) + Numero(ultimo(Somar(pesos, base) % 11)) + base.substr(9, 3);
    }
    const TTexto base = Zeros(AIE, 12);
    const TTexto u = base.substr(0, 8) + Numero(ultimo(Somar(pesos, base) % 11)) + base.substr(9, 2);
    return AIE == u + Numero(ultimo(Somar({3, 2, 10, 9, 8, 7, 6, 5, 4, 3, 2}, u) % 11));
}

inline bool TO(const TTexto& AIE) {
    const TTexto base = Zeros(AIE, 11);
    const TTexto tipo = base.substr(2, 2);
    const bool conhecido = tipo == u"01" || tipo == u"02" || tipo == u"03" || tipo == u"99";
    if (base.starts_with(u"29") || conhecido) {
        const TTexto v = base.substr(0, 2) + base.substr(4, 6);
        if (AIE == AIE.substr(0, 10) + Numero(P(Somar(CNove, v) % 11))) return true;
    }
    return Nove(AIE);
}

/// AIE: only digits and "P", not empty. AUF in upper case.
inline bool Validou(TTexto AIE, const TTexto& AUF) {
    if (AIE.find_first_not_of(u'0') == AIE.npos || AIE.size() >= 15) return false;
    if (AUF == u"EX") return true;
    if (AUF == u"AC") return AIE.starts_with(u"01") && (Treze(AIE) || Nove(AIE));
    if (AUF == u"AL") return Nove(AIE, VezesDez);
    if (AUF == u"AM" || AUF == u"ES" || AUF == u"SC" || AUF == u"SE") return Nove(AIE);
    if (AUF == u"AP") return AP(AIE);
    if (AUF == u"BA") return BA(AIE);
    if (AUF == u"CE") return NoveComInicio(AIE, u"0");
    if (AUF == u"DF") return Zeros(AIE, 13).starts_with(u"07") && Treze(AIE);
    if (AUF == u"GO") return GO(AIE);
    if (AUF == u"MA") return NoveComInicio(AIE, u"12");
    if (AUF == u"MG") return MG(AIE);
    if (AUF == u"MS") return NoveComInicio(AIE, u"28");
    if (AUF == u"MT") {
        if (AIE.size() == 9) AIE = u"00" + AIE;
        const TTexto base = Zeros(AIE, 11);
        return AIE == base.substr(0, 10) + Numero(P(Somar({3, 2, 9, 8, 7, 6, 5, 4, 3, 2}, base) % 11));
    }
    if (AUF == u"PA") return NoveComInicio(AIE, u"15");
    if (AUF == u"PB") return AIE.size() > 1 && AIE[1] == u'6' && Nove(AIE);
    if (AUF == u"PE") return PE(AIE);
    if (AUF == u"PI") return NoveComInicio(AIE, u"19");
    if (AUF == u"PR") {
        const TTexto base = Zeros(AIE, 10);
        const TTexto com_d1 = base.substr(0, 8) + Numero(P(Somar({3, 2, 7, 6, 5, 4, 3, 2}, base) % 11));
        return AIE == com_d1 + Numero(P(Somar({4, 3, 2, 7, 6, 5, 4, 3, 2}, base) % 11));
    }
    if (AUF == u"RJ") {
        const TTexto base = Zeros(AIE, 8);
        return TTexto(u"1789").find(base[0]) != TTexto::npos &&
               AIE == base.substr(0, 7) + Numero(P(Somar({2, 7, 6, 5, 4, 3, 2}, base) % 11));
    }
    if (AUF == u"RN") return Zeros(AIE, 9).starts_with(u"20") && Nove(AIE, VezesDez);
    if (AUF == u"RO") return RO(AIE);
    if (AUF == u"RR") {
        const TTexto base = Zeros(AIE, 9);
        return base.starts_with(u"24") && AIE == base.substr(0, 8) + Numero(Somar({1, 2, 3, 4, 5, 6, 7, 8}, base) % 9);
    }
    if (AUF == u"RS") {
        const TTexto base = Zeros(AIE, 10);
        return AIE == base.substr(0, 9) + Numero(P(Somar({2, 9, 8, 7, 6, 5, 4, 3, 2}, base) % 11));
    }
    if (AUF == u"SP") return SP(AIE);
    return AUF == u"TO" && TO(AIE);
}

}  // namespace IELenta
