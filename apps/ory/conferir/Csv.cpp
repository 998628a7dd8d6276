#include "conferir/Csv.hpp"

#include <algorithm>

namespace Ory {

char DetectarDelimitador(std::string_view AInicio) noexcept {
    std::size_t virgulas = 0;
    std::size_t pontosEVirgulas = 0;
    bool entreAspas = false;
    for (const char c : AInicio) {
        if (c == '"') entreAspas = !entreAspas;
        if (entreAspas) continue;
        if (c == '\n') break;
        virgulas += c == ',';
        pontosEVirgulas += c == ';';
    }
    return virgulas > pontosEVirgulas ? ',' : ';';
}

std::size_t TCortadorDeRegistros::Cortar(std::string_view APedaco) noexcept {
    const bool semAspas = APedaco.find('"') == std::string_view::npos;
    if (semAspas && FEstado != eaEntreAspas) {
        const std::size_t fim = APedaco.rfind('\n') + 1;  // npos + 1 is 0
        if (fim < APedaco.size()) FEstado = APedaco.back() == FDelimitador ? eaInicioDeCampo : eaForaDeAspas;
        if (fim && fim == APedaco.size()) FEstado = eaInicioDeCampo;
        return fim;
    }
    std::size_t fim = 0;
    for (std::size_t i = 0; i < APedaco.size(); ++i) {
        if (FEstado == eaEntreAspas) {
            i = APedaco.find('"', i);
            if (i == std::string_view::npos) break;
            FEstado = eaAspaVista;
            continue;
        }
        const char c = APedaco[i];
        if (c == '\n') {
            fim = i + 1;
            FEstado = eaInicioDeCampo;
        } else if (c == FDelimitador) {
            FEstado = eaInicioDeCampo;
        } else if (c == '"' && FEstado != eaForaDeAspas) {
            FEstado = eaEntreAspas;  // opens the field, or is the second of a pair
        } else {
            FEstado = eaForaDeAspas;
        }
    }
    return fim;
}

TLeitorDeRegistros::TLeitorDeRegistros(std::string_view ADados, char ADelimitador, std::size_t AMaximoDeCampos)
    : FResto(ADados),
      FDelimitador(ADelimitador),
      FTemAspas(ADados.find('"') != std::string_view::npos),
      FMaximoDeCampos(AMaximoDeCampos) {
    if (FTemAspas) FDesdobrado.reserve(ADados.size());  // never grows: the views into it must hold
}

bool TLeitorDeRegistros::Proximo() {
    if (FResto.empty()) return false;
    FCampos.clear();
    FDesdobrado.clear();
    FTotalDeCampos = 0;
    if (FTemAspas)
        LerComAspas();
    else
        LerSemAspas();
    return true;
}

void TLeitorDeRegistros::LerSemAspas() {
    const std::size_t quebra = FResto.find('\n');
    Fechar(quebra == std::string_view::npos ? FResto.size() : quebra + 1);
    FQuebras = quebra != std::string_view::npos;
    for (std::string_view resto = FTexto;;) {
        const std::size_t fim = resto.find(FDelimitador);
        Juntar(resto.substr(0, fim));
        if (fim == std::string_view::npos) return;
        resto.remove_prefix(fim + 1);
    }
}

void TLeitorDeRegistros::LerComAspas() {
    FQuebras = 0;
    std::size_t i = 0;
    while (true) {
        if (i < FResto.size() && FResto[i] == '"') {
            i = LerCampoEntreAspas(i);
        } else {
            const std::size_t inicio = i;
            while (i < FResto.size() && FResto[i] != FDelimitador && FResto[i] != '\n') ++i;
            const bool crlf = i > inicio && i < FResto.size() && FResto[i] == '\n' && FResto[i - 1] == '\r';
            Juntar(FResto.substr(inicio, i - inicio - crlf));
        }
        if (i >= FResto.size()) return Fechar(FResto.size());
        if (FResto[i++] == '\n') break;
    }
    ++FQuebras;
    Fechar(i);
}

// Reads the field that opens at AInicio; gives the position of what ends it.
std::size_t TLeitorDeRegistros::LerCampoEntreAspas(std::size_t AInicio) {
    const std::size_t desdobrado = FDesdobrado.size();
    std::size_t inicio = AInicio + 1;  // of the part not yet taken
    std::size_t i = inicio;
    while (true) {
        i = std::min(FResto.find('"', i), FResto.size());
        if (i + 1 >= FResto.size() || FResto[i + 1] != '"') break;
        FDesdobrado.append(FResto, inicio, i + 1 - inicio);
        i += 2;
        inicio = i;
    }
    FQuebras += static_cast<std::uint64_t>(std::count(FResto.begin() + static_cast<std::ptrdiff_t>(AInicio),
                                                      FResto.begin() + static_cast<std::ptrdiff_t>(i), '\n'));
    std::size_t fim = std::min(i + 1, FResto.size());  // behind the closing quote
    std::size_t sobra = fim;
    while (sobra < FResto.size() && FResto[sobra] != FDelimitador && FResto[sobra] != '\n') ++sobra;
    const bool crlf = sobra > fim && sobra < FResto.size() && FResto[sobra] == '\n' && FResto[sobra - 1] == '\r';
    const std::string_view depois = FResto.substr(fim, sobra - fim - crlf);
    if (FDesdobrado.size() == desdobrado && depois.empty()) {
        Juntar(FResto.substr(inicio, i - inicio));
    } else {
        FDesdobrado.append(FResto, inicio, i - inicio);
        FDesdobrado.append(depois);
        Juntar(std::string_view(FDesdobrado).substr(desdobrado));
    }
    return sobra;
}

void TLeitorDeRegistros::Juntar(std::string_view ACampo) {
    if (FTotalDeCampos++ < FMaximoDeCampos) FCampos.push_back(ACampo);
}

// The record takes the first ATamanho bytes.
void TLeitorDeRegistros::Fechar(std::size_t ATamanho) {
    std::string_view registro = FResto.substr(0, ATamanho);
    FResto.remove_prefix(ATamanho);
    std::size_t fim = 0;
    if (registro.ends_with('\n')) fim = registro.ends_with("\r\n") ? 2 : 1;
    FTexto = registro.substr(0, registro.size() - fim);
    FFimDeLinha = registro.substr(registro.size() - fim);
}

void EscreverCampo(std::string& ASaida, std::string_view ACampo, char ADelimitador) {
    const bool simples =
        ACampo.find_first_of("\"\r\n") == std::string_view::npos && ACampo.find(ADelimitador) == std::string_view::npos;
    if (simples) {
        ASaida += ACampo;
        return;
    }
    ASaida += '"';
    for (const char c : ACampo) {
        if (c == '"') ASaida += '"';
        ASaida += c;
    }
    ASaida += '"';
}

}  // namespace Ory
