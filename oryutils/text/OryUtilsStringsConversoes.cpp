// GUIDs, Base64, keys, buffers and the masks of federal inscription numbers.
#include "oryutils/characters/Ascii.hpp"
#include "oryutils/characters/Hexadecimal.hpp"
#include "oryutils/fields/Mascara.hpp"
#include "oryutils/platform/Aleatorio.hpp"
#include "oryutils/platform/Teclado.hpp"
#include "oryutils/text/OryUtilsStrings.hpp"
#include "oryutils/text/interno/Base64.hpp"
#include "oryutils/text/interno/Utf8Exato.hpp"

#include <algorithm>
#include <cstddef>

namespace OryUtils {
namespace {

struct TMascarasInscricao {
    TTipoInscricao Tipo;
    std::u16string_view Edicao;
    std::u16string_view Exibicao;
};

constexpr std::array CMascarasInscricao{
    TMascarasInscricao{tiCNPJ, u"99.999.999/9999-99;0; ", u"##.###.###\\/####\\-##;0"},
    TMascarasInscricao{tiCPF, u"999.999.999-99;0; ", u"###.###.###\\-##;0"},
    TMascarasInscricao{tiCEI, u"99.999.99999/99;0; ", u"##.###.#####\\/##;0"},
};

const TMascarasInscricao* BuscarMascaras(TTipoInscricao ATipo) {
    const auto encontrada = std::find_if(CMascarasInscricao.begin(), CMascarasInscricao.end(),
                                         [&](const TMascarasInscricao& m) { return m.Tipo == ATipo; });
    return encontrada == CMascarasInscricao.end() ? nullptr : &*encontrada;
}

}  // namespace

std::u16string TOryUtilsStrings::BuscarNovoGuid() {
    std::array<std::byte, 16> bytes{};
    Interno::PreencherAleatorio(bytes);
    bytes[6] = (bytes[6] & std::byte{0x0F}) | std::byte{0x40};  // version 4: random
    bytes[8] = (bytes[8] & std::byte{0x3F}) | std::byte{0x80};  // the standard's variant
    std::u16string resultado = u"{";
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (i == 4 || i == 6 || i == 8 || i == 10) resultado += u'-';
        resultado += Interno::TextoHexadecimal(std::to_integer<std::uint32_t>(bytes[i]), 2);
    }
    std::ranges::transform(resultado, resultado.begin(), Interno::MaiusculaAscii<char16_t>);
    return resultado += u'}';
}

std::u16string TOryUtilsStrings::ConverterTextoParaBase64(std::u16string_view ATexto) {
    return Interno::CodificarBase64(Interno::ParaUtf8Exato(ATexto));
}

std::u16string TOryUtilsStrings::ConverterBase64ParaTexto(std::u16string_view ATexto) {
    return Interno::DeUtf8Exato(Interno::DecodificarBase64(ATexto));
}

std::u16string TOryUtilsStrings::ConverterTeclaVirtualParaCaractere(std::uint16_t ATecla) {
    std::u16string caracteres = Interno::TraduzirTeclaVirtual(ATecla);
    return caracteres.size() == 1 ? caracteres : std::u16string();
}

std::unique_ptr<TVetorDeCaracteres> TOryUtilsStrings::ConverterTextoParaVetorDeCaracteres(std::u16string_view ATexto) {
    auto vetor = std::make_unique<TVetorDeCaracteres>();
    ATexto.copy(vetor->data(), vetor->size());
    return vetor;
}

std::u16string TOryUtilsStrings::BuscarMascara(TTipoInscricao ATipo) {
    const TMascarasInscricao* mascaras = BuscarMascaras(ATipo);
    return mascaras ? std::u16string(mascaras->Edicao) : std::u16string();
}

std::u16string TOryUtilsStrings::FormatarInscricaoFederal(TTipoInscricao ATipo, std::u16string_view ANumero) {
    // The masks escape their separators, so they are the same under all formats.
    static const std::array<TMascara, CMascarasInscricao.size()> exibicoes = [] {
        std::array<TMascara, CMascarasInscricao.size()> lista;
        for (std::size_t i = 0; i < lista.size(); ++i)
            lista[i] = TMascara(CMascarasInscricao[i].Exibicao, BuscarFormatosBrasileiros());
        return lista;
    }();
    const TMascarasInscricao* mascaras = BuscarMascaras(ATipo);
    if (!mascaras) return std::u16string(ANumero);
    return exibicoes[static_cast<std::size_t>(mascaras - CMascarasInscricao.data())].Exibir(ANumero);
}

}  // namespace OryUtils
