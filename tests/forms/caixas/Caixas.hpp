// What holds for edit boxes bound to fields whatever the toolkit, done in real boxes of each.
#pragma once

#include "oryutils/fields/EditorDeCampo.hpp"

#include <cstddef>
#include <string>
#include <string_view>

namespace OryUtils {

/// A window with edit boxes, the person in front of them, and the program behind them.
class TCaixas {
public:
    static constexpr std::size_t CQuantas = 3;

    TCaixas() = default;
    TCaixas(const TCaixas&) = delete;
    TCaixas& operator=(const TCaixas&) = delete;
    virtual ~TCaixas() = default;

    /// Binds the box to the field, instead of the one before.
    virtual TEditorDeCampo& Ligar(std::size_t ACaixa, TField& ACampo) = 0;
    /// No box is bound any more.
    virtual void Desligar() = 0;
    virtual std::u16string Texto(std::size_t ACaixa) = 0;

    // The person: keys go to the box that has the focus.
    virtual void Entrar(std::size_t ACaixa) = 0;
    /// To a box that is bound to nothing.
    virtual void Deixar() = 0;
    /// To another window, and back to this one.
    virtual void IrEVoltar() = 0;
    virtual void Digitar(std::u16string_view ATexto) = 0;
    virtual void Colar(std::u16string_view ATexto) = 0;
    virtual void Teclar(TTeclaMascara ATecla) = 0;
    virtual void TeclarDecimal() = 0;
    virtual void TeclarDesfazer() = 0;
    virtual void TeclarEsc() = 0;
    virtual void Selecionar(std::size_t AInicio, std::size_t AFim) = 0;

    // The program.
    virtual void Escrever(std::size_t ACaixa, std::u16string_view ATexto) = 0;
    virtual void TornarSomenteLeitura(std::size_t ACaixa, bool ASomenteLeitura) = 0;
};

/// Under the Brazilian formats.
void ConferirCaixas(TCaixas& ACaixas);
/// AFormularios windows with random fields and values, through which the focus wanders: nothing changes.
void PassearSemDigitar(TCaixas& ACaixas, int AFormularios);
/// ANumeros numbers, each typed, pasted and loaded in many spellings: one value, or a refusal that is told.
void CompararGrafias(TCaixas& ACaixas, int ANumeros);

}  // namespace OryUtils
