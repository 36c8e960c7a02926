// What the grid asks of the tools, and the scope of commands. Main thread only.
#pragma once
#include "platform/ObservableKeys.h"

#include <cstdint>

class ZELSequenceGridViewModelController;

inline constexpr std::int32_t kToolCrop = 904;

class ToolBox {
public:
    virtual ~ToolBox() = default;
    [[nodiscard]] virtual std::int32_t currentTool() const = 0;
    [[nodiscard]] virtual bool isDrawingCrop() const = 0;
    // The crop of the grid's frames becomes a fixed frame, or one that handles can be drawn at.
    virtual void U_FreezeTheCrop(ZELSequenceGridViewModelController& grid) = 0;
    virtual void U_ActivateTheCrop(ZELSequenceGridViewModelController& grid) = 0;
};

// Whether commands are for the frame at hand or for its whole sequence: one setting of the program,
// kept among the preferences. Key: "toolScope".
class ToolScope final : public ObservableKeys {
public:
    static constexpr std::int32_t kFrame = 0, kSequence = 1;
    static constexpr int kTagFrame = 501, kTagSequence = 502;  // of menus

    [[nodiscard]] static ToolScope& Shared();      // the program's
    ToolScope() : ObservableKeys({}) {}            // one of its own, for tests
    [[nodiscard]] std::int32_t toolScope() const;  // read from the preferences when first asked
    void setToolScope(std::int32_t scope);
    void changeToolScope(int menuTag);  // nothing for another tag

    // Commands do something.
    [[nodiscard]] bool isKnown() const { return toolScope() == kFrame || isSequence(); }
    [[nodiscard]] bool isSequence() const { return toolScope() == kSequence; }

private:
    mutable std::int32_t fScope = -1;  // -1 not read yet
};
