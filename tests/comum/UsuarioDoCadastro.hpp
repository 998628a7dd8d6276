#pragma once

#include "oryutils/runtime/Formatos.hpp"

#include "apps/cadastro/Cadastro.hpp"
#include "forms/roteiros/Roteiros.hpp"

namespace OryUtils::Cadastro {

/// The person in front of the sample window, whatever its toolkit.
class TUsuarioDoCadastro {
public:
    virtual ~TUsuarioDoCadastro() = default;

    /// Opens a window, does APassos and closes it; each step sees all effects of the one before.
    virtual void Conduzir(TPassos APassos) = 0;
    /// Fills the window in as the program does for its pictures.
    virtual void Exemplificar() = 0;
    /// Puts a text into a box, as the program does.
    virtual void Preencher(TCampo ACampo, const char* ATexto) = 0;
    virtual std::string Ler(TCampo ACampo) = 0;
    virtual std::string LerPorExtenso() = 0;
    virtual void Focar(TCampo ACampo) = 0;
    virtual bool EstahFocado(TCampo ACampo) = 0;
    virtual void Salvar() = 0;
    /// What the dialog over the window says; empty without one.
    virtual std::string LerAviso() = 0;
    virtual TUsuario& Teclado() = 0;
};

std::unique_ptr<TUsuarioDoCadastro> CriarUsuarioDoCadastro();

}  // namespace OryUtils::Cadastro
