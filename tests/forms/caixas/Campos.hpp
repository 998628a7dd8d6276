#pragma once

#include "oryutils/registry_numbers/UnOryUtilsFormatacoes.hpp"

#include <memory>

namespace OryUtils {

/// A field of each kind of box.
struct TFeitioDeCampo {
    const char* Nome;
    TFieldType Tipo;
    void (*Formatar)(TField&);

    std::unique_ptr<TField> Criar() const {
        auto campo = EhCampoNumerico(Tipo) ? std::make_unique<TNumericField>(Tipo) : std::make_unique<TField>(Tipo);
        if (Formatar) Formatar(*campo);
        return campo;
    }
};

inline void FormatarData(TField& ACampo) { FormatarCampo(ACampo, u"99/99/9999;1;_"); }
inline void FormatarHora(TField& ACampo) { FormatarCampo(ACampo, u"99:99:99;1;_"); }
inline void FormatarMomento(TField& ACampo) { FormatarCampo(ACampo, u"99/99/9999 99:99;1;_"); }
inline void FormatarLivre(TField& ACampo) { FormatarCampo(ACampo, u"ccccc;0;_"); }
inline void FormatarSoExibicao(TField& ACampo) { FormatarCampoNumerico(ACampo, u",0.00 'reais'", u""); }

inline constexpr TFeitioDeCampo CTexto{"texto", ftString, nullptr};
inline constexpr TFeitioDeCampo CCpf{"CPF", ftString, FormatarCPF};
inline constexpr TFeitioDeCampo CCnpj{"CNPJ", ftString, FormatarCNPJ};
inline constexpr TFeitioDeCampo CCnpjAlfa{"CNPJ alfanumérico", ftString, FormatarCnpjAlfanumericoCampo};
inline constexpr TFeitioDeCampo CCpfCnpj{"CPF ou CNPJ", ftString, FormatarCpfCnpj};
inline constexpr TFeitioDeCampo CCei{"CEI", ftString, FormatarCEI};
inline constexpr TFeitioDeCampo CCep{"CEP", ftString, FormatarCEP};
inline constexpr TFeitioDeCampo CCompetencia{"competência", ftString, FormatarCompetencia};
inline constexpr TFeitioDeCampo CCrc{"CRC", ftString, FormatarCRC};
inline constexpr TFeitioDeCampo CFone{"telefone", ftString, FormatarFone};
inline constexpr TFeitioDeCampo CFoneDDD{"telefone com DDD", ftString, FormatarFoneDDD};
inline constexpr TFeitioDeCampo CNcm{"NCM", ftString, FormatarNCM};
inline constexpr TFeitioDeCampo CValor{"valor", ftFloat, FormatarCampoValor};
inline constexpr TFeitioDeCampo CPercentual{"percentual", ftCurrency, FormatarCampoPercentual};
inline constexpr TFeitioDeCampo CInteiro{"inteiro", ftInteger, FormatarCampoInteiro};
inline constexpr TFeitioDeCampo CInteiroEmDecimal{"decimal com formato inteiro", ftFloat, FormatarCampoInteiro};
inline constexpr TFeitioDeCampo CGrande{"inteiro grande", ftLargeint, FormatarCampoInteiro};
inline constexpr TFeitioDeCampo CPequeno{"inteiro pequeno", ftSmallint, nullptr};
inline constexpr TFeitioDeCampo CPositivo{"inteiro positivo", ftWord, nullptr};
inline constexpr TFeitioDeCampo CSoExibicao{"número com formato de exibição", ftExtended, FormatarSoExibicao};
inline constexpr TFeitioDeCampo CNumero{"número sem formato", ftExtended, nullptr};
inline constexpr TFeitioDeCampo CData{"data", ftDate, FormatarData};
inline constexpr TFeitioDeCampo CHora{"hora", ftTime, FormatarHora};
inline constexpr TFeitioDeCampo CDataHora{"data e hora", ftDateTime, nullptr};
inline constexpr TFeitioDeCampo CDataHoraEmMascara{"data e hora em máscara de data", ftDateTime, FormatarData};
inline constexpr TFeitioDeCampo CMomento{"data e hora em máscara das duas", ftDateTime, FormatarMomento};
inline constexpr TFeitioDeCampo CLivre{"máscara de caracteres quaisquer", ftString, FormatarLivre};

inline constexpr TFeitioDeCampo CFeitios[] = {
    CTexto,  CCpf,     CCnpj,        CCnpjAlfa,   CCpfCnpj,
    CCei,    CCep,     CCompetencia, CCrc,        CFone,
    CNcm,    CFoneDDD, CValor,       CPercentual, CInteiro,
    CGrande, CPequeno, CPositivo,    CSoExibicao, CInteiroEmDecimal,
    CNumero, CData,    CHora,        CDataHora,   CDataHoraEmMascara,
    CLivre,  CMomento,
};

}  // namespace OryUtils
