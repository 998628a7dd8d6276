#pragma once

#include <array>
#include <cstdint>
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

inline TNo Texto(std::u16string_view AChave, std::u16string_view AValor) {
    return {.Chave = std::u16string(AChave), .Valor = DeTexto(std::u16string(AValor) + u'\0')};
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

constexpr std::size_t CInicioDaSecao = 0x200;
constexpr std::size_t CEnderecoDaSecao = 0x1000;

/// A PE file with nothing but version resources: a language number and the bytes of the block for each.
inline std::string MontarArquivo(bool A64Bits, const std::vector<std::pair<unsigned, std::string>>& ABlocos) {
    // Folder of types, of names, of languages; then the places of the data; then the data.
    std::string recursos;
    const auto pasta = [&](std::size_t AEntradas) {
        recursos.append(14, '\0');
        Por16(recursos, AEntradas);
    };
    pasta(1);
    Por32(recursos, 16);
    Por32(recursos, 0x8000'0018);
    pasta(1);
    Por32(recursos, 1);
    Por32(recursos, 0x8000'0030);
    pasta(ABlocos.size());
    const std::size_t dados = 0x40 + ABlocos.size() * 8;
    for (std::size_t i = 0; i < ABlocos.size(); ++i) {
        Por32(recursos, ABlocos[i].first);
        Por32(recursos, dados + i * 16);
    }
    std::size_t lugar = dados + ABlocos.size() * 16;
    for (const auto& [idioma, bloco] : ABlocos) {
        Por32(recursos, CEnderecoDaSecao + lugar);
        Por32(recursos, bloco.size());
        recursos.append(8, '\0');
        lugar = (lugar + bloco.size() + 3) / 4 * 4;
    }
    for (const auto& [idioma, bloco] : ABlocos) {
        recursos += bloco;
        Alinhar(recursos, 4);
    }
    const std::size_t tamanho = recursos.size();
    Alinhar(recursos, 0x200);

    std::string arquivo = "MZ";
    arquivo.resize(0x3C);
    Por32(arquivo, 0x40);
    arquivo += std::string_view("PE\0\0", 4);
    Por16(arquivo, A64Bits ? 0x8664 : 0x014C);
    Por16(arquivo, 1);  // sections
    arquivo.append(12, '\0');
    Por16(arquivo, A64Bits ? 240 : 224);
    Por16(arquivo, A64Bits ? 0x2022 : 0x2102);  // a library
    Por16(arquivo, A64Bits ? 0x20B : 0x10B);
    arquivo.append(A64Bits ? 22 : 26, '\0');
    Por(arquivo, 0x1000'0000, A64Bits ? 8 : 4);  // base
    Por32(arquivo, CEnderecoDaSecao);
    Por32(arquivo, 0x200);
    for (const unsigned versao : {4u, 0u, 0u, 0u, 4u, 0u}) Por16(arquivo, versao);
    Por32(arquivo, 0);
    Por32(arquivo, CEnderecoDaSecao + (recursos.size() + 0xFFF) / 0x1000 * 0x1000);
    Por32(arquivo, CInicioDaSecao);
    Por32(arquivo, 0);
    Por16(arquivo, 3);  // console
    Por16(arquivo, 0);
    for (int i = 0; i < 4; ++i) Por(arquivo, 0x100000, A64Bits ? 8 : 4);
    Por32(arquivo, 0);
    Por32(arquivo, 16);
    arquivo.append(16, '\0');
    Por32(arquivo, CEnderecoDaSecao);
    Por32(arquivo, tamanho);
    arquivo.append(13 * 8, '\0');
    arquivo += std::string_view(".rsrc\0\0\0", 8);
    Por32(arquivo, tamanho);
    Por32(arquivo, CEnderecoDaSecao);
    Por32(arquivo, recursos.size());
    Por32(arquivo, CInicioDaSecao);
    arquivo.append(12, '\0');
    Por32(arquivo, 0x4000'0040);
    arquivo.resize(CInicioDaSecao);
    return arquivo + recursos;
}

}  // namespace Pe
