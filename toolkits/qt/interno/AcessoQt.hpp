#pragma once

namespace OryUtils {

/// From now on forms with an icon of a message are alerts for screen readers, with the message as their description.
void DeclararAlertas();

}  // namespace OryUtils
