#include "oryutils/system/interno/SaidaDeComando.hpp"

#include "oryutils/platform/Memoria.hpp"
#include "oryutils/runtime/Caracteres.hpp"
#include "oryutils/runtime/Utf.hpp"
#include "oryutils/system/interno/Executor.hpp"

#include <algorithm>
#include <array>
#include <cstring>
#include <exception>
#include <utility>

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

constexpr std::size_t CBloco = 16;
/// A chunk and its text, with room for whole blocks.
constexpr std::size_t CEspaco = (TSaidaDeComando::CTamanhoDaParte + CBloco - 1) / CBloco * CBloco;

// Widens CEspaco bytes a block at a time, which the compiler turns into few instructions; false when one is not ASCII.
bool AlargarAscii(const std::array<char, CEspaco>& ABytes, std::array<char16_t, CEspaco>& ATexto) {
    std::array<unsigned char, CBloco> todos{};
    for (std::size_t bloco = 0; bloco < CEspaco; bloco += CBloco)
        for (std::size_t i = 0; i < CBloco; ++i) {
            const auto byte = static_cast<unsigned char>(ABytes[bloco + i]);
            todos[i] = static_cast<unsigned char>(todos[i] | byte);
            ATexto[bloco + i] = byte;
        }
    return std::ranges::all_of(todos, [](unsigned char AByte) { return AByte < 0x80; });
}

// As PercorrerLinhas, with the line feeds looked up among the bytes of the text, which is quicker.
template <typename TAcao>
void PercorrerLinhasAscii(const char* ABytes, std::u16string_view ATexto, TAcao AAcao) {
    while (const void* quebra = std::memchr(ABytes, '\n', ATexto.size())) {
        const auto tamanho = static_cast<std::size_t>(static_cast<const char*>(quebra) - ABytes);
        const bool com_retorno = tamanho > 0 && ABytes[tamanho - 1] == '\r';
        const std::size_t linha = com_retorno ? tamanho - 1 : tamanho;
        if (std::memchr(ABytes, '\r', linha))
            PercorrerLinhas(ATexto.substr(0, linha), AAcao);
        else
            AAcao(ATexto.substr(0, linha));
        ABytes += tamanho + 1;
        ATexto.remove_prefix(tamanho + 1);
    }
    if (std::memchr(ABytes, '\r', ATexto.size()))
        PercorrerLinhas(ATexto, AAcao);
    else
        AAcao(ATexto);
}

}  // namespace

void TSaidaEmLista::Continuar(std::u16string_view ATexto) {
    Abrir();
    if (FLinhas.empty())
        FLinhas.emplace_back(ATexto);
    else
        FLinhas.back().append(ATexto);
}

// A list does not tell a text that ends with a line break from one that does not: setting it drops the break.
void TSaidaEmLista::ParteVazia() {
    Abrir();
    if (!FLinhas.empty() && FLinhas.back().empty()) FLinhas.pop_back();
}

void TSaidaEmLista::Abrir() {
    if (std::exchange(FAberta, true)) return;
    const auto possui_quebra = [](const std::u16string& ALinha) { return std::ranges::any_of(ALinha, EhQuebra); };
    if (std::ranges::none_of(FLinhas, possui_quebra)) return;
    std::vector<std::u16string> linhas;
    PercorrerLinhas(JuntarLinhas(FLinhas), [&](std::u16string_view ALinha) { linhas.emplace_back(ALinha); });
    FLinhas = std::move(linhas);
}

void TSaidaEmTexto::Continuar(std::u16string_view ATexto) {
    ReservarParaParte();
    FTexto.append(ATexto);
}

void TSaidaEmTexto::ReservarParaParte() {
    constexpr std::size_t CMaiorParte = 3 * TSaidaDeComando::CTamanhoDaParte;  // all of it line breaks
    constexpr std::size_t CTextoLongo = 1 << 20;
    if (FTexto.capacity() < CTextoLongo || FTexto.capacity() - FTexto.size() >= CMaiorParte) return;
    std::u16string maior;
    try {
        maior.reserve(FTexto.capacity() * Plataforma::BuscarFatorDeCrescimento());
    } catch (const std::exception&) {
        return;  // it grows as far as it needs to
    }
    Plataforma::AnunciarPreenchimento(maior.data(), maior.capacity() * sizeof(char16_t));
    maior.append(FTexto);
    FTexto.swap(maior);
}

TSaidaDeComando::TSaidaDeComando(TDestinoDaSaida& ADestino, TDecodificador ADecodificador)
    : FDestino(ADestino), FDecodificador(std::move(ADecodificador)) {
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
    bool primeira = true;
    const auto anexar = [&](std::u16string_view ALinha) {
        if (std::exchange(primeira, false))
            FDestino.Continuar(ALinha);
        else
            FDestino.NovaLinha(ALinha);
    };
    std::array<char, CEspaco> bytes{};
    std::array<char16_t, CEspaco> texto;
    std::memcpy(bytes.data(), ABytes.data(), ABytes.size());
    if (AlargarAscii(bytes, texto)) {
        const std::u16string_view aparado = Aparar({texto.data(), ABytes.size()});
        if (aparado.empty()) return FDestino.ParteVazia();
        PercorrerLinhasAscii(bytes.data() + (aparado.data() - texto.data()), aparado, anexar);
    } else {
        const std::u16string decodificado = FDecodificador(ABytes);
        const std::u16string_view aparado = Aparar(decodificado);
        if (aparado.empty()) return FDestino.ParteVazia();
        PercorrerLinhas(aparado, anexar);
    }
}

std::vector<std::u16string> LinhasDaSaidaDeComando(std::string_view ABytes) {
    std::vector<std::u16string> linhas;
    TSaidaEmLista lista(linhas);
    TSaidaDeComando saida(lista, [](std::string_view AParte) { return DeUtf8(AParte); });
    saida.Receber(ABytes);
    saida.FecharParte();
    return linhas;
}

}  // namespace OryUtils::Sistema
