#pragma once

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <string_view>

/// Ownership and small helpers over xcb. Not to be included where Qt is.
namespace ondrilo {

struct FreeReply {
    void operator()(void* reply) const { std::free(reply); }
};
template <typename T>
using Reply = std::unique_ptr<T, FreeReply>;

template <typename T>
[[nodiscard]] Reply<T> Owned(T* reply) {
    return Reply<T>(reply);
}

/// A connection to the display of the environment.
class X11Connection {
  public:
    X11Connection() : connection(xcb_connect(nullptr, &screenNumber)) {}
    X11Connection(const X11Connection&) = delete;
    X11Connection& operator=(const X11Connection&) = delete;
    ~X11Connection() { xcb_disconnect(connection); }

    [[nodiscard]] xcb_connection_t* Get() const { return connection; }
    [[nodiscard]] bool IsOpen() const { return xcb_connection_has_error(connection) == 0; }
    [[nodiscard]] bool Has(xcb_extension_t& extension) const;
    /// The root window; 0 if the connection is not open.
    [[nodiscard]] xcb_window_t Root() const;
    /// 0 if the connection is not open.
    [[nodiscard]] xcb_atom_t Atom(std::string_view name) const;
    /// The 32-bit value of a property, or 0.
    [[nodiscard]] std::uint32_t Property(xcb_window_t window, xcb_atom_t property) const;
    void Flush() const { xcb_flush(connection); }
    /// Waits until the server has done all that was asked of it.
    void Synchronize() const;

  private:
    int screenNumber = 0;
    xcb_connection_t* connection;
};

} // namespace ondrilo
