// What the calculator window calls on the windows it works for: the transform
// window, whose input function F(p) is a calculator program, and a data
// channel client, which fills the channel menus with its channels.
#pragma once

class QMenu;

namespace lapdesk {

// The transform window as the calculator sees it.
class TransformPartner {
  public:
    virtual ~TransformPartner() = default;

    // Stores the transform's current parameters as values in the calculator.
    virtual void ASetLapOpValur() = 0;
    // Makes the transform's input data from the current program and
    // transforms it; true on success.
    virtual bool TesmorDataSet() = 0;
    // Brings the transform window to the front.
    virtual void ZOrder() = 0;
};

// The channel menus of the calculator, handed to the client to fill with the
// names of its data channels.
struct ChannelMenus {
    QMenu* chVp = nullptr;         // MenueChVp
    QMenu* chVp2 = nullptr;        // MenueChVp2
    QMenu* aver = nullptr;         // MenueAver
    QMenu* max = nullptr;          // MenueMax
    QMenu* dmConstants = nullptr;  // MenueDmConstats
};

class ChannelClient {
  public:
    virtual ~ChannelClient() = default;

    // Replaces the entries of the menus with the client's channels. Each
    // entry's text is "name:description" (inserted up to the ":"), or a
    // bracketed call such as "Vp(1):..." (inserted as "Vp()", caret inside).
    virtual void DmChnMenueLoad(const ChannelMenus& menus) = 0;
};

}  // namespace lapdesk
