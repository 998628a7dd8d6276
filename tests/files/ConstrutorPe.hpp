#pragma once

#include <array>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// Version resources and PE files put together by hand: also such as no resource compiler makes.
namespace Pe {

inline void Por(std::string& ABytes, std::uint64_t AValor, int ATamanho) {
    for (int i = 0; i < ATamanho; ++i) ABytes += static_cast<char>(AValor >> 8 * i);
}
inline void Por16(std::string& ABytes, std::uint64_t AValor) { Por(ABytes, AValor, 2); }
inline void Por32(std::string& ABytes, std::uint64_t AValor) { Por(ABytes, AValor, 4); }
inline void Por32(std::string& ABytes, std::initializer_list<std::uint64_t> AValores) {
    for (const std::uint64_t valor : AValores) Por32(ABytes, valor);
}
inline void Alinhar(std::string& ABytes, std::size_t AMultiplo) {
    ABytes.resize((ABytes.size() + AMultiplo - 1) / AMultiplo * AMultiplo);
}
inline std::string DeTexto(std::u16string_view ATexto) {
    std::string bytes;
    for (const char16_t letra : ATexto) Por16(bytes, letra);
    return bytes;
}

struct TNo {
    std::u16string Chave{};
    bool Texto = true;
    std::string Valor{};
    std::optional<std::size_t> TamanhoDoValor{};  // when it is not the true one
    std::vector<TNo> Filhos{};
    std::size_t Sobra = 0;  // bytes of filling that the length counts
};

inline std::string Montar(const TNo& ANo) {
    std::string bytes(6, '\0');
    bytes += DeTexto(ANo.Chave + u'\0');
    Alinhar(bytes, 4);
    bytes += ANo.Valor;
    for (const TNo& filho : ANo.Filhos) {
        Alinhar(bytes, 4);
        bytes += Montar(filho);
    }
    bytes.resize(bytes.size() + ANo.Sobra);
    std::string cabecalho;
    Por16(cabecalho, bytes.size());
    Por16(cabecalho, ANo.TamanhoDoValor.value_or(ANo.Texto ? ANo.Valor.size() / 2 : ANo.Valor.size()));
    Por16(cabecalho, ANo.Texto);
    return bytes.replace(0, cabecalho.size(), cabecalho);
}

inline TNo Texto(std::u16string_view AChave, std::u16string_view AValor, std::optional<std::size_t> ATamanho = {}) {
    return {
        .Chave = std::u16string(AChave), .Valor = DeTexto(std::u16string(AValor) + u'\0'), .TamanhoDoValor = ATamanho};
}
inline TNo Tabela(std::u16string_view ANome, std::vector<TNo> ATextos) {
    return {.Chave = std::u16string(ANome), .Filhos = std::move(ATextos)};
}
inline TNo Textos(std::vector<TNo> ATabelas) { return {.Chave = u"StringFileInfo", .Filhos = std::move(ATabelas)}; }
/// Pairs of language and code page.
inline TNo Traducoes(std::vector<std::pair<unsigned, unsigned>> APares) {
    std::string valor;
    for (const auto& [idioma, pagina] : APares) {
        Por16(valor, idioma);
        Por16(valor, pagina);
    }
    TNo traducao{.Chave = u"Translation", .Texto = false, .Valor = valor};
    return {.Chave = u"VarFileInfo", .Filhos = {traducao}};
}
inline TNo Raiz(std::optional<std::array<unsigned, 4>> AVersao, std::vector<TNo> AFilhos) {
    std::string valor;
    if (AVersao) {
        Por32(valor, 0xFEEF04BD);
        Por32(valor, 0x00010000);
        for (const std::size_t i : {1u, 0u, 3u, 2u}) Por16(valor, (*AVersao)[i]);
        valor.resize(52);
    }
    return {.Chave = u"VS_VERSION_INFO", .Texto = false, .Valor = valor, .Filhos = std::move(AFilhos)};
}
/// A resource in Portuguese with those texts.
inline TNo EmPortugues(std::array<unsigned, 4> AVersao, std::vector<TNo> ATextos) {
    return Raiz(AVersao, {Textos({Tabela(u"041604b0", std::move(ATextos))}), Traducoes({{0x416, 1200}})});
}

constexpr std::size_t CInicioDaSecao = 0x200;
constexpr std::size_t CEnderecoDaSecao = 0x1000;

using TBlocos = std::vector<std::pair<unsigned, std::string>>;

inline std::string MontarRecursos(const TBlocos& ABlocos) {
    const std::size_t inicioDosLugares = 0x40 + ABlocos.size() * 8;
    const std::size_t inicioDosBlocos = inicioDosLugares + ABlocos.size() * 16;
    std::string pastas, lugares, blocos;
    // Folder of types, of names, of languages: how many entries; then each one's number and where it leads.
    Por32(pastas, {0, 0, 0, 1 << 16, 16, 0x8000'0018});
    Por32(pastas, {0, 0, 0, 1 << 16, 1, 0x8000'0030});
    Por32(pastas, {0, 0, 0, ABlocos.size() << 16});
    for (const auto& [idioma, bloco] : ABlocos) {
        Por32(pastas, {idioma, inicioDosLugares + lugares.size()});
        Por32(lugares, {CEnderecoDaSecao + inicioDosBlocos + blocos.size(), bloco.size(), 0, 0});
        Alinhar(blocos += bloco, 4);
    }
    return pastas + lugares + blocos;
}

/// A PE file with nothing but version resources: a language number and the bytes of the block for each.
inline std::string MontarArquivo(bool A64Bits, const TBlocos& ABlocos) {
    std::string recursos = MontarRecursos(ABlocos);
    const std::size_t tamanho = recursos.size();
    Alinhar(recursos, 0x200);
    const std::size_t fim = CEnderecoDaSecao + (recursos.size() + 0xFFF) / 0x1000 * 0x1000;

    std::string arquivo = "MZ";
    arquivo.resize(0x3C);
    Por32(arquivo, 0x40);
    arquivo += std::string_view("PE\0\0", 4);
    Por32(arquivo, {A64Bits ? 0x1'8664u : 0x1'014Cu, 0, 0, 0});  // one section
    Por32(arquivo, A64Bits ? 0x2022'00F0u : 0x2102'00E0u);       // a library
    Por16(arquivo, A64Bits ? 0x20B : 0x10B);
    arquivo.append(A64Bits ? 22 : 26, '\0');
    Por(arquivo, 0x1000'0000, A64Bits ? 8 : 4);  // base
    // Alignments, versions, sizes; 3 is a program of the console.
    Por32(arquivo, {CEnderecoDaSecao, 0x200, 4, 0, 4, 0, fim, CInicioDaSecao, 0, 3});
    for (int i = 0; i < 4; ++i) Por(arquivo, 0x100000, A64Bits ? 8 : 4);
    Por32(arquivo, {0, 16, 0, 0, 0, 0, CEnderecoDaSecao, tamanho});
    arquivo.append(13 * 8, '\0');
    arquivo += std::string_view(".rsrc\0\0\0", 8);
    Por32(arquivo, {tamanho, CEnderecoDaSecao, recursos.size(), CInicioDaSecao, 0, 0, 0, 0x4000'0040});
    arquivo.resize(CInicioDaSecao);
    return arquivo + recursos;
}

}  // namespace Pe
