#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/fields/CamposTipos.hpp"
#include "oryutils/fields/Mascara.hpp"
#include "oryutils/runtime/Evento.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/Formatos.hpp"
#include "oryutils/runtime/Objeto.hpp"
#include "oryutils/runtime/Variante.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace OryUtils {

/// Which mask shows a number, told by its letters and digits: a phone of eight or nine digits, a CPF or a CNPJ. Any
/// text may be asked for; each answer is a sound mask that stores no literals.
using TEscolhaDeMascara = std::u16string_view (*)(std::u16string_view AConteudo);

/// A field of the data-access layer: a value of one kind and how controls show it. Starts without a value (null).
/// Texts follow the formats given, those of the process when none are.
class ORY_API TField : public TObjeto {
public:
    explicit TField(TFieldType ATipo) : FTipo(ATipo), FValor(TNulo{}) {}

    TFieldType GetTipo() const noexcept { return FTipo; }

    const Variant& GetValor() const noexcept { return FValor; }
    /// Null and unassigned empty the field. Raises EInvalidCast for a value that the field does not hold, an integer
    /// out of the range of its kind among them.
    void SetValor(const Variant& AValor);
    bool EhNulo() const noexcept { return std::holds_alternative<TNulo>(FValor.GetValor()); }

    const std::u16string& GetEditMask() const noexcept { return FEditMask; }
    /// See TMascara; empty for none. Raises EConvertError for a broken one.
    void SetEditMask(std::u16string_view AMascara);
    /// The mask follows the number; takes the place of the edit mask. Null for no mask. Raises EConvertError when
    /// AEscolha(u"") is broken.
    void SetEscolhaDeMascara(TEscolhaDeMascara AEscolha);
    TEscolhaDeMascara GetEscolhaDeMascara() const noexcept { return FEscolha; }
    /// The mask that shows ATexto. "/" and ":" are the separators of the formats in a field of dates or times; in any
    /// other one they are literals as they stand.
    TMascara GetMascaraDoTexto(std::u16string_view ATexto, const TFormatSettings& AFormatos = FormatSettings()) const;

    /// True when a box may take a number only with all places of the mask filled, or with none.
    /// Another mask takes it back.
    bool GetSomenteCompleto() const noexcept { return FSomenteCompleto; }
    void SetSomenteCompleto(bool ASomenteCompleto) noexcept { FSomenteCompleto = ASomenteCompleto; }

    /// What a control shows: the value in the edit mask; nothing when null. A value stored with marks is shown with
    /// those of the mask; one that has other characters besides is shown as it is.
    virtual std::u16string GetTextoExibido(const TFormatSettings& AFormatos = FormatSettings()) const;
    /// The value as text.
    virtual std::u16string GetTexto(const TFormatSettings& AFormatos = FormatSettings()) const;
    /// What a control edits.
    virtual std::u16string GetTextoDeEdicao(const TFormatSettings& AFormatos = FormatSettings()) const;
    /// Takes a text; blank is null. Raises EConvertError when it is no value of this field, which then keeps its own.
    void SetTexto(std::u16string_view ATexto, const TFormatSettings& AFormatos = FormatSettings());

    /// AOuvinte is called after each change of the value or the mask.
    void AdicionarOuvinte(const TEvento<>& AOuvinte) { FOuvintes.push_back(AOuvinte); }
    void RemoverOuvinte(const TEvento<>& AOuvinte) { std::erase(FOuvintes, AOuvinte); }

protected:
    /// AValor (neither null nor unassigned) as the field keeps it.
    virtual Variant Converter(const Variant& AValor) const;
    /// A text that is not blank as a value.
    virtual Variant LerTexto(std::u16string_view ATexto, const TFormatSettings& AFormatos) const;

private:
    void Trocar(Variant AValor);
    void Avisar() const;

    TFieldType FTipo;
    bool FSomenteCompleto = false;
    Variant FValor;
    std::u16string FEditMask;
    TEscolhaDeMascara FEscolha = nullptr;
    std::vector<TEvento<>> FOuvintes;
};

/// A field of numbers: an integer kind keeps an integer of its range (ftSmallint, ftShortint, ftByte, ftWord, ftInteger
/// and ftAutoInc, ftLongWord, ftLargeint), any other one an extended float.
class ORY_API TNumericField : public TField {
public:
    /// Raises EInvalidCast when ATipo is no kind of number.
    explicit TNumericField(TFieldType ATipo);

    const std::u16string& GetDisplayFormat() const noexcept { return FDisplayFormat; }
    /// How the number is shown, see FormatarNumero; empty for the ordinary text of the number.
    void SetDisplayFormat(std::u16string_view AFormato) { FDisplayFormat = AFormato; }
    const std::u16string& GetEditFormat() const noexcept { return FEditFormat; }
    /// How it is written as text and edited. Empty: GetTexto follows the display format, and a box edits the number
    /// itself, which no format has rounded.
    void SetEditFormat(std::u16string_view AFormato) { FEditFormat = AFormato; }

    std::u16string GetTextoExibido(const TFormatSettings& AFormatos = FormatSettings()) const override;
    std::u16string GetTexto(const TFormatSettings& AFormatos = FormatSettings()) const override;
    std::u16string GetTextoDeEdicao(const TFormatSettings& AFormatos = FormatSettings()) const override;

protected:
    Variant Converter(const Variant& AValor) const override;
    Variant LerTexto(std::u16string_view ATexto, const TFormatSettings& AFormatos) const override;

private:
    std::u16string Formatar(std::u16string_view AFormato, const TFormatSettings& AFormatos) const;

    std::u16string FDisplayFormat;
    std::u16string FEditFormat;
};

/// Kinds of date, time and number of the data-access layer.
ORY_API bool EhCampoDeData(TFieldType ATipo) noexcept;
ORY_API bool EhCampoInteiro(TFieldType ATipo) noexcept;
ORY_API bool EhCampoNumerico(TFieldType ATipo) noexcept;

}  // namespace OryUtils
