// What holds for forms whatever the toolkit, done by a user of each.
#pragma once

#include "oryutils/forms/Toolkit.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <string>

namespace OryUtils {

using TPassos = std::deque<std::function<void()>>;

/// The person in front of the form that is shown.
class TUsuario {
public:
    TUsuario() = default;
    TUsuario(const TUsuario&) = delete;
    TUsuario& operator=(const TUsuario&) = delete;
    virtual ~TUsuario() = default;

    /// Runs AFormulario; APassos follow one another, each when the one before has had its effects.
    virtual int Executar(TFormulario& AFormulario, TPassos APassos) = 0;
    virtual bool HaFormulario() = 0;
    /// A key of the model's codes, pressed where the focus is.
    virtual void Teclar(std::uint16_t ATecla) = 0;
    virtual void TeclarComAlt(char ALetra) = 0;
    virtual void Escrever(const char* ATexto) = 0;
    virtual void Clicar(std::u16string_view ACaption) = 0;
    virtual void ClicarComMouse(std::u16string_view ACaption) = 0;
    virtual void FecharJanela() = 0;
};

/// A method bound as an event, from a closure that the test keeps.
template <typename... TArgs>
struct TOuvinte {
    std::function<void(TArgs...)> Acao;
    void Chamar(TArgs... AArgs) { Acao(AArgs...); }
    TEvento<TArgs...> GetEvento() { return TEvento<TArgs...>::template De<&TOuvinte::Chamar>(*this); }
};

/// Edit, memo, check box, three options and the buttons Sim (default), Não, Cancelar (cancel).
struct TFormularioCompleto : TFormulario {
    TIcone& Icone = Adicionar<TIcone>();
    TRotulo& Mensagem = Adicionar<TRotulo>();
    TCaixaEdicao& Edicao = Adicionar<TCaixaEdicao>();
    TMemorando& Memorando = Adicionar<TMemorando>();
    TCaixaChecagem& Caixa = Adicionar<TCaixaChecagem>();
    TGrupoOpcoes& Grupo = Adicionar<TGrupoOpcoes>();
    TBotao& Sim = Adicionar<TBotao>();
    TBotao& Nao = Adicionar<TBotao>();
    TBotao& Cancelar = Adicionar<TBotao>();

    explicit TFormularioCompleto(std::u16string_view ATitulo = u"Confirmação") {
        SetTitulo(ATitulo);
        SetTamanhoCliente(420, 330);
        Icone.SetIdIcone(32514);
        Icone.SetRetangulo({10, 10, 32, 32});
        Mensagem.SetTexto(u"Gravar & sair?\r\nHá alterações.");
        Mensagem.SetRetangulo({60, 10, 300, 40});
        Edicao.SetRetangulo({60, 60, 200, 24});
        Memorando.SetRetangulo({60, 90, 300, 60});
        Caixa.SetTexto(u"Não &perguntar de novo");
        Caixa.SetRetangulo({60, 155, 300, 20});
        Grupo.SetTexto(u"Opções: ");
        Grupo.SetRetangulo({60, 180, 200, 100});
        for (const char16_t* item : {u"Uma", u"Outra", u"Nenhuma"}) Grupo.AdicionarItem(item);
        const struct {
            TBotao& Botao;
            const char16_t* Texto;
            int Resultado;
        } botoes[] = {{Sim, u"&Sim", mrYes}, {Nao, u"&Não", mrNo}, {Cancelar, u"&Cancelar", mrCancel}};
        int left = 60;
        for (const auto& b : botoes) {
            b.Botao.SetTexto(b.Texto);
            b.Botao.SetModalResult(b.Resultado);
            b.Botao.SetRetangulo({left, 295, 75, 25});
            left += 78;
        }
        Sim.SetPadrao(true);
        Cancelar.SetCancelar(true);
    }
};

/// Every scenario, with the toolkit that is installed.
void ConferirRoteiros(TUsuario& AUsuario);

}  // namespace OryUtils
