#pragma once

#include "oryutils/system/OryUtilsSystem.hpp"
#include "oryutils/system/interno/ComandosFirewall.hpp"
#include "oryutils/system/interno/Executor.hpp"

namespace OryUtils::Interno {

TResultStatus LiberouPorta(const TExecutorDeComando& AExecutor, TDialetoFirewall ADialeto,
                           TTipoProtocoloPortaComunicacao AProtocolo, int APorta, std::u16string_view ANome);
TResultStatus ExcluiuPorta(const TExecutorDeComando& AExecutor, TDialetoFirewall ADialeto,
                           TTipoProtocoloPortaComunicacao AProtocolo, int APorta);
TResultStatus LiberouPrograma(const TExecutorDeComando& AExecutor, TDialetoFirewall ADialeto,
                              std::u16string_view APrograma, std::u16string_view ANome);
TResultStatus ExcluiuPrograma(const TExecutorDeComando& AExecutor, TDialetoFirewall ADialeto,
                              std::u16string_view APrograma, std::u16string_view ANome);

}  // namespace OryUtils::Interno
