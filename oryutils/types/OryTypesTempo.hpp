#pragma once

#include <array>
#include <string_view>

namespace OryTypes {

/// Units of time. Only the ordinals 3 to 8 take part in date arithmetic.
enum TTipoMedidaTempo : int {
    tmtNenhuma = 0,
    tmtMicrossegundo = 1,
    tmtMilissegundo = 2,
    tmtSegundo = 3,
    tmtMinuto = 4,
    tmtHora = 5,
    tmtDia = 6,
    tmtMes = 7,
    tmtAno = 8,
};

/// Full weekday names; entry 1 is Sunday, entry 0 is not used.
inline constexpr std::array<std::u16string_view, 8> CVetorDiasSemanaCompleto{
    u"", u"Domingo", u"Segunda-feira", u"Terça-feira", u"Quarta-feira", u"Quinta-feira", u"Sexta-feira", u"Sábado"};

}  // namespace OryTypes
