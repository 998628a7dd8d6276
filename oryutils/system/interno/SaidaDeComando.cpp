#include "oryutils/system/interno/SaidaDeComando.hpp"

#include "oryutils/runtime/Caracteres.hpp"
#include "oryutils/runtime/Utf.hpp"
#include "oryutils/system/interno/Executor.hpp"

#include <algorithm>
#include <array>
#include <cstring>

namespace OryUtils::Sistema {
namespace {

bool EhQuebra(char16_t ACaractere) { return ACaractere == u'\r' || ACaractere == u'\n'; }

// Calls AAcao for each line of ATexto; what stands behind the last line break is a line too.
template <typename TAcao>
void PercorrerLinhas(std::u16string_view ATexto, TAcao AAcao) {
    while (true) {
        const auto quebra = std::find_if(ATexto.begin(), ATexto.end(), EhQuebra);
        const auto tamanho = static_cast<std::size_t>(quebra - ATexto.begin());
        AAcao(ATexto.substr(0, tamanho));
        if (quebra == ATexto.end()) return;
        ATexto.remove_prefix(ATexto.substr(tamanho).starts_with(u"\r\n") ? tamanho + 2 : tamanho + 1);
    }
}

// Widens ABytes while they are ASCII; false when one is not. Eight at a time, as the compiler makes of it.
bool AlargarAscii(std::string_view ABytes, char16_t* ADestino) {
    unsigned char todos = 0;
    for (std::size_t i = 0; i < ABytes.size(); ++i) {
        const auto byte = static_cast<unsigned char>(ABytes[i]);
        todos |= byte;
        ADestino[i] = byte;
    }
    return todos < 0x80;
}

}  // namespace

TSaidaDeComando::TSaidaDeComando(std::vector<std::u16string>& ALinhas, TDecodificador ADecodificador)
    : FLinhas(ALinhas), FDecodificador(std::move(ADecodificador)) {
    FResto.reserve(CTamanhoDaParte);
}

void TSaidaDeComando::Receber(std::string_view ABytes) {
    if (!FResto.empty()) {
        const std::size_t falta = std::min(CTamanhoDaParte - FResto.size(), ABytes.size());
        FResto.append(ABytes.substr(0, falta));
        ABytes.remove_prefix(falta);
        if (FResto.size() == CTamanhoDaParte) FecharParte();
    }
    for (; ABytes.size() >= CTamanhoDaParte; ABytes.remove_prefix(CTamanhoDaParte))
        ReceberParte(ABytes.substr(0, CTamanhoDaParte));
    FResto.append(ABytes);
}

void TSaidaDeComando::FecharParte() {
    if (!FResto.empty()) ReceberParte(FResto);
    FResto.clear();
}

void TSaidaDeComando::ReceberParte(std::string_view ABytes) {
    ABytes = ABytes.substr(0, ABytes.find('\0'));
    std::array<char16_t, CTamanhoDaParte> ascii;
    if (AlargarAscii(ABytes, ascii.data()))
        AnexarAparado(Aparar({ascii.data(), ABytes.size()}));
    else
        AnexarAparado(Aparar(FDecodificador(ABytes)));
}

void TSaidaDeComando::AnexarAparado(std::u16string_view ATexto) {
    if (!FAberta) AbrirLinhas();
    if (ATexto.empty()) {
        // A list does not tell a text that ends with a line break from one that does not: reading it drops the break.
        if (!FLinhas.empty() && FLinhas.back().empty()) FLinhas.pop_back();
        return;
    }
    bool primeira = true;
    PercorrerLinhas(ATexto, [&](std::u16string_view ALinha) {
        if (primeira && !FLinhas.empty())
            FLinhas.back().append(ALinha);
        else
            FLinhas.emplace_back(ALinha);
        primeira = false;
    });
}

// Line breaks inside the caller's items count from the first chunk on.
void TSaidaDeComando::AbrirLinhas() {
    FAberta = true;
    const auto possui_quebra = [](const std::u16string& ALinha) { return std::ranges::any_of(ALinha, EhQuebra); };
    if (std::ranges::none_of(FLinhas, possui_quebra)) return;
    std::vector<std::u16string> linhas;
    PercorrerLinhas(JuntarLinhas(FLinhas), [&](std::u16string_view ALinha) { linhas.emplace_back(ALinha); });
    FLinhas = std::move(linhas);
}

std::vector<std::u16string> LinhasDaSaidaDeComando(std::string_view ABytes) {
    std::vector<std::u16string> linhas;
    TSaidaDeComando saida(linhas, [](std::string_view AParte) { return DeUtf8(AParte); });
    saida.Receber(ABytes);
    saida.FecharParte();
    return linhas;
}

}  // namespace OryUtils::Sistema
