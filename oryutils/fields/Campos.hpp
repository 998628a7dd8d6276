#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/fields/CamposTipos.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/Objeto.hpp"
#include "oryutils/runtime/Variante.hpp"

#include <string>
#include <string_view>

namespace OryUtils {

/// A field of the data-access layer: a value of one kind and how controls show it. Starts without a value (null).
/// All texts follow the process-wide formats.
class ORY_API TField : public TObjeto {
public:
    explicit TField(TFieldType ATipo) : FTipo(ATipo), FValor(TNulo{}) {}

    TFieldType GetTipo() const noexcept { return FTipo; }

    const Variant& GetValor() const noexcept { return FValor; }
    /// Null and unassigned empty the field. Raises EInvalidCast for a value that the field does not hold.
    void SetValor(const Variant& AValor);
    bool EhNulo() const noexcept { return std::holds_alternative<TNulo>(FValor.GetValor()); }

    const std::u16string& GetEditMask() const noexcept { return FEditMask; }
    /// See TMascara; empty for none. Raises EConvertError for a broken one.
    void SetEditMask(std::u16string_view AMascara);

    /// What a control shows: the value in the edit mask; nothing when null.
    virtual std::u16string GetTextoExibido() const;
    /// What a control edits.
    virtual std::u16string GetTexto() const;
    /// Takes what was typed; blank is null. Raises EConvertError when it is no value of this field.
    void SetTexto(std::u16string_view ATexto);

protected:
    /// AValor (neither null nor unassigned) as the field keeps it.
    virtual Variant Converter(const Variant& AValor) const;
    /// A text that is not blank as a value.
    virtual Variant LerTexto(std::u16string_view ATexto) const;

private:
    TFieldType FTipo;
    Variant FValor;
    std::u16string FEditMask;
};

/// A field of numbers: an integer kind keeps a 64-bit integer, any other one an extended float.
class ORY_API TNumericField : public TField {
public:
    /// Raises EInvalidCast when ATipo is no kind of number.
    explicit TNumericField(TFieldType ATipo);

    const std::u16string& GetDisplayFormat() const noexcept { return FDisplayFormat; }
    /// How the number is shown, see FormatarNumero; empty for the ordinary text of the number.
    void SetDisplayFormat(std::u16string_view AFormato) { FDisplayFormat = AFormato; }
    const std::u16string& GetEditFormat() const noexcept { return FEditFormat; }
    /// How it is edited; empty for the display format.
    void SetEditFormat(std::u16string_view AFormato) { FEditFormat = AFormato; }

    std::u16string GetTextoExibido() const override;
    std::u16string GetTexto() const override;

protected:
    Variant Converter(const Variant& AValor) const override;
    Variant LerTexto(std::u16string_view ATexto) const override;

private:
    std::u16string Formatar(std::u16string_view AFormato) const;

    std::u16string FDisplayFormat;
    std::u16string FEditFormat;
};

/// Kinds of number of the data-access layer.
ORY_API bool EhCampoInteiro(TFieldType ATipo) noexcept;
ORY_API bool EhCampoNumerico(TFieldType ATipo) noexcept;

}  // namespace OryUtils
