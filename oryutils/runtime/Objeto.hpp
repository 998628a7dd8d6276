#pragma once

namespace OryUtils {

/// Root of what can send events and own components.
class TObjeto {
public:
    virtual ~TObjeto() = default;

protected:
    TObjeto() = default;
    TObjeto(const TObjeto&) = default;
    TObjeto& operator=(const TObjeto&) = default;
};

}  // namespace OryUtils
