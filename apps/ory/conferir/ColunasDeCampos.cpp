#include "conferir/ColunasDeCampos.hpp"

#include "oryutils/characters/Caixa.hpp"
#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/characters/Utf.hpp"
#include "oryutils/fields/Mascara.hpp"
#include "oryutils/registry_numbers/OryUtilsValidacoes.hpp"
#include "oryutils/registry_numbers/interno/MascarasDeCampos.hpp"
#include "oryutils/runtime/FormatoDataHora.hpp"

#include "conferir/Codificacao.hpp"

#include <algorithm>
#include <array>

namespace Ory {
namespace {

using OryUtils::TMascara;
using OryUtils::TOryUtilsValidacoes;

/// A column by its mask. A form or a database may hold part of such a number; a checked file holds the whole.
struct TColunaMascarada {
    TTipoColuna Tipo;
    std::u16string_view Mascara;
    std::size_t MenosDigitos;
};
constexpr std::array CMascaradas{
    TColunaMascarada{tcCep, OryUtils::Interno::CMascaraCep, 8},
    TColunaMascarada{tcTelefone, OryUtils::Interno::CMascaraFone, 10},  // area code and eight digits
    TColunaMascarada{tcCompetencia, OryUtils::Interno::CMascaraCompetencia, 6},
    TColunaMascarada{tcNcm, OryUtils::Interno::CMascaraNcm, 8},
};

const TColunaMascarada* BuscarMascarada(TTipoColuna ATipo) {
    const auto* coluna = std::ranges::find(CMascaradas, ATipo, &TColunaMascarada::Tipo);
    return coluna == CMascaradas.end() ? nullptr : coluna;
}

const TMascara& BuscarMascara(const TColunaMascarada& AColuna) {
    static const std::array<TMascara, CMascaradas.size()> mascaras = [] {
        std::array<TMascara, CMascaradas.size()> lista;
        for (std::size_t i = 0; i < lista.size(); ++i)
            lista[i] = TMascara(CMascaradas[i].Mascara, OryUtils::BuscarFormatosBrasileiros());
        return lista;
    }();
    return mascaras[static_cast<std::size_t>(&AColuna - CMascaradas.data())];
}

/// People write these numbers with other marks than the mask has, or with none.
std::u16string RetirarMarcas(std::u16string_view ATexto) {
    std::u16string resultado(ATexto);
    std::erase_if(resultado, [](char16_t c) { return std::u16string_view(u" .-/()").find(c) != std::u16string::npos; });
    return resultado;
}

bool ValidouMascarada(const TColunaMascarada& AColuna, std::u16string_view ATexto) {
    const std::u16string digitos = RetirarMarcas(ATexto);
    if (digitos.size() < AColuna.MenosDigitos || !BuscarMascara(AColuna).Aceita(digitos)) return false;
    if (AColuna.Tipo != tcCompetencia) return true;
    const std::u16string_view mes = std::u16string_view(digitos).substr(0, 2);
    return mes >= u"01" && mes <= u"12";
}

/// The area code stays apart from the number however many digits both have.
std::u16string FormatarTelefone(std::u16string_view ADigitos) {
    std::u16string_view area = ADigitos.substr(0, ADigitos.front() == u'0' ? 3 : 2);
    if (ADigitos.size() - area.size() < 8) area = ADigitos.substr(0, 2);
    const std::u16string_view numero = ADigitos.substr(area.size());
    const std::size_t meio = numero.size() - 4;
    std::u16string texto = u"(";
    texto.append(area).append(u")").append(numero.substr(0, meio)).append(u"-").append(numero.substr(meio));
    return texto;
}

/// Several addresses in one field.
template <typename TReceber>
void PercorrerEmails(std::u16string_view ATexto, TReceber AReceber) {
    while (true) {
        const std::size_t fim = ATexto.find_first_of(u";,");
        AReceber(OryUtils::Aparar(ATexto.substr(0, fim)));
        if (fim == ATexto.npos) return;
        ATexto.remove_prefix(fim + 1);
    }
}

std::u16string NormalizarCrc(std::u16string_view ATexto) { return OryUtils::MaiusculaDe(RetirarMarcas(ATexto)); }

}  // namespace

bool EhColunaDeCampo(TTipoColuna ATipo) { return ATipo >= tcEmail && ATipo <= tcNcm; }

bool ValidouColunaDeCampo(TTipoColuna ATipo, std::string_view ACampo) {
    const std::u16string texto = Decodificar(ACampo);
    switch (ATipo) {
        case tcEmail:
            return TOryUtilsValidacoes::ValidouEmail(texto);
        case tcEmails: {
            bool validos = true;
            PercorrerEmails(texto, [&](std::u16string_view AEmail) {
                validos = validos && TOryUtilsValidacoes::ValidouEmail(AEmail);
            });
            return validos;
        }
        case tcCrc:
            return NormalizarCrc(texto).size() == 11 && TOryUtilsValidacoes::ValidouCRC(NormalizarCrc(texto));
        case tcData:
            return TOryUtilsValidacoes::ValidouData(texto);
        case tcHora:
            return TOryUtilsValidacoes::ValidouHora(texto);
        case tcIp:
            return TOryUtilsValidacoes::ValidouEnderecoIP(texto);
        default:
            break;
    }
    const TColunaMascarada* coluna = BuscarMascarada(ATipo);
    return coluna && ValidouMascarada(*coluna, texto);
}

void EscreverCampoFormatado(std::string& ASaida, TTipoColuna ATipo, std::string_view ACampo) {
    const std::u16string texto = Decodificar(ACampo);
    switch (ATipo) {
        case tcCrc:
            ASaida += OryUtils::ParaUtf8(NormalizarCrc(texto));
            return;
        case tcData:
            ASaida += OryUtils::ParaUtf8(
                OryUtils::FormatarDataHora(u"dd/mm/yyyy", OryUtils::TextoParaData(texto), OryUtils::FormatSettings()));
            return;
        case tcTelefone:
            ASaida += OryUtils::ParaUtf8(FormatarTelefone(RetirarMarcas(texto)));
            return;
        default:
            break;
    }
    if (const TColunaMascarada* coluna = BuscarMascarada(ATipo))
        ASaida += OryUtils::ParaUtf8(BuscarMascara(*coluna).Exibir(RetirarMarcas(texto)));
    else
        ASaida += ACampo;
}

}  // namespace Ory
