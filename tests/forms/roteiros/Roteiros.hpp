// What holds for forms whatever the toolkit, done by a user of each.
#pragma once

#include "oryutils/forms/Toolkit.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace OryUtils {

using TPassos = std::deque<std::function<void()>>;

/// A control as it is seen on the screen.
struct TVisto {
    TRetangulo Lugar;
    std::u16string Texto;
    bool Visivel = false, Habilitado = false, Focado = false;
    bool Marcado = false;                 ///< a check box that is checked, a memo that is only read
    std::vector<TRetangulo> Opcoes{};     ///< of a group, on the form
    std::u16string TextoDasOpcoes = u"";  ///< one a line
    int Escolhida = -1;
};

/// Where the person is on the form in front.
struct TFoco {
    std::u16string Texto;          ///< of the focused control, as it is read; an option has its own
    bool Marcado = false;          ///< a checked option or check box
    std::u16string BotaoPadrao{};  ///< caption of the button that is drawn as the one that Enter presses
};

/// A control of the dialog in front, measured on the screen.
struct TNativo {
    std::u16string Texto, Dica;
    TRetangulo Lugar;  ///< in the client area
    bool Cabe = true;  ///< the text that it shows fits it, or scrolls in it
    bool Focavel = false, EhOpcao = false;
    bool Rolado = false;  ///< in a view that scrolls
};
struct TVisao {
    TRetangulo Janela;  ///< on the screen, frame and all
    TTamanho Cliente;
    std::vector<TNativo> Controles;     ///< what is visible; of a group, its options
    std::vector<TRetangulo> Tabulacao;  ///< where Tab stops, once around
};

/// The person in front of the form that is shown.
class TUsuario {
public:
    TUsuario() = default;
    TUsuario(const TUsuario&) = delete;
    TUsuario& operator=(const TUsuario&) = delete;
    virtual ~TUsuario() = default;

    /// Runs AFormulario; APassos follow one another, each when the one before has had its effects.
    virtual int Executar(TFormulario& AFormulario, TPassos APassos) = 0;
    /// AMostrar shows a dialog of the library; APassos follow one another on it.
    virtual void Conduzir(TPassos APassos, const std::function<void()>& AMostrar) = 0;
    virtual bool HaFormulario() = 0;
    /// A key of the model's codes, pressed where the focus is.
    virtual void Teclar(std::uint16_t ATecla) = 0;
    virtual void TeclarComAlt(char ALetra) = 0;
    virtual void TeclarComCtrl(char ALetra) = 0;
    virtual void TeclarComShift(std::uint16_t ATecla) = 0;
    virtual TFoco VerFoco() = 0;
    virtual std::u16string LerAreaDeTransferencia() = 0;
    virtual void Escrever(const char* ATexto) = 0;
    virtual void Clicar(std::u16string_view ACaption) = 0;
    virtual void ClicarComMouse(std::u16string_view ACaption) = 0;
    virtual void FecharJanela() = 0;
    /// Drags the border of AFormulario until its client area has that size.
    virtual void Redimensionar(const TFormulario& AFormulario, TTamanho ACliente) = 0;

    /// The controls of AFormulario on the screen, in the order of the model. The first is the window: its title, and
    /// the size of its client area.
    virtual std::vector<TVisto> Ver(const TFormulario& AFormulario) = 0;
    virtual TVisao Medir() = 0;
    /// False where no button has that caption.
    virtual bool ClicarSeHouver(std::u16string_view ACaption) = 0;
    /// The work areas of the screens that this program has.
    virtual std::vector<TRetangulo> BuscarTelas() = 0;
    /// The dialogs that follow belong to a window on that screen.
    virtual void AbrirEm(std::size_t ATela) = 0;
    /// Drags the dialog in front to that screen.
    virtual void ArrastarPara(std::size_t ATela) = 0;
    /// Windows and widgets of the program, where the system does not count them.
    virtual long ContarObjetos() { return 0; }
};

/// The user of the toolkit that this program tests, which is in use meanwhile; null where no window can be shown.
std::unique_ptr<TUsuario> CriarUsuario();

class Roteiro : public testing::Test {
protected:
    void SetUp() override {
        if (!FUsuario) GTEST_SKIP() << "no window can be created here: run under a display";
    }
    const std::unique_ptr<TUsuario> FUsuario = CriarUsuario();
};

inline constexpr std::uint16_t CTab = 9, CEnter = 13, CEsc = 27, CEspaco = 32, CAcima = 38, CAbaixo = 40, CF1 = 112;

/// One is over the other, in part at least.
inline bool SeTocam(const TRetangulo& A, const TRetangulo& B) {
    return A.Left < B.Left + B.Width && B.Left < A.Left + A.Width && A.Top < B.Top + B.Height &&
           B.Top < A.Top + A.Height;
}

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
        const std::pair<TControleFormulario*, const char16_t*> nomes[] = {
            {&Edicao, u"Edicao"}, {&Memorando, u"Memorando"}, {&Caixa, u"Caixa"}, {&Grupo, u"Grupo"}, {&Sim, u"Sim"},
            {&Nao, u"Nao"},       {&Cancelar, u"Cancelar"}};
        for (const auto& [controle, nome] : nomes) controle->SetNome(nome);
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

}  // namespace OryUtils
