#pragma once

#include "oryutils/fields/Mascara.hpp"
#include "oryutils/registry_numbers/UnOryUtilsFormatacoes.hpp"

#include <memory>
#include <optional>

namespace OryUtils {

/// What is typed into the box of a field, whatever the toolkit, and what comes of it.
struct TCasoDeEdicao {
    void (*Formatar)(TField&);
    TFieldType Tipo;
    const char* Digitado;
    std::optional<TTeclaMascara> Tecla;  // pressed afterwards
    const char* NaCaixa;
    const char* Gravado;  // the field's text after the box is left
    const char* Exibido;
    int Cursor;  // before

    std::unique_ptr<TField> CriarCampo() const {
        auto campo = EhCampoNumerico(Tipo) ? std::make_unique<TNumericField>(Tipo) : std::make_unique<TField>(Tipo);
        Formatar(*campo);
        return campo;
    }
};

inline void FormatarData(TField& ACampo) { FormatarCampo(ACampo, u"99/99/9999;1;_"); }

inline constexpr TCasoDeEdicao CCasosDeEdicao[] = {
    {FormatarCPF, ftString, "529982a24725", {}, "529.982.247-25", "52998224725", "529.982.247-25", 14},
    {FormatarCPF, ftString, "529", tmEsquerda, "529.   .   -  ", "529", "529.   .   -  ", 2},
    {FormatarCPF, ftString, "529", tmApagar, "52 .   .   -  ", "52", "52 .   .   -  ", 2},
    {FormatarCPF, ftString, "529", tmInicio, "529.   .   -  ", "529", "529.   .   -  ", 0},
    {FormatarCEP, ftString, "01310100", tmExcluir, "01310-100", "01310100", "01310-100", 9},
    {FormatarCNPJ, ftString, "11.222.333/0001-81", tmFim, "11.222.333/0001-81", "11222333000181", "11.222.333/0001-81",
     18},
    {FormatarFone, ftString, "11987654321", {}, "(119)87654-321 ", "( 11)98765-4321", "( 11)98765-4321", 14},
    {FormatarData, ftDate, "29022024", {}, "29/02/2024", "29/02/2024", "29/02/2024", 10},
    {FormatarCampoValor, ftFloat, "-12x34.5,", {}, "-1234,5", "-1234,50", "-1.234,50", 7},
    {FormatarCampoInteiro, ftInteger, "1,5", {}, "15", "15", "15", 2},
};

}  // namespace OryUtils
