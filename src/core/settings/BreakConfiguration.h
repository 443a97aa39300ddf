#pragma once

#include "SettingsEnums.h"

#include <QJsonObject>

#include <optional>

namespace velto {

// The four fields that say how strict a break is, taken together. The settings store remembers them as
// they stood when a named preset was applied, to notice when the user has edited away from it.
struct BreakBehaviorSnapshot {
    Q_GADGET
    Q_PROPERTY(velto::SkipDifficulty skipDifficulty MEMBER skipDifficulty)
    Q_PROPERTY(bool delayWhileTyping MEMBER delayWhileTyping)
    Q_PROPERTY(bool allowEarlyEnd MEMBER allowEarlyEnd)
    Q_PROPERTY(bool lockScreenOnBreak MEMBER lockScreenOnBreak)

public:
    SkipDifficulty skipDifficulty = SkipDifficulty::Balanced;
    bool delayWhileTyping = true;
    bool allowEarlyEnd = true;
    bool lockScreenOnBreak = false;

    friend bool operator==(const BreakBehaviorSnapshot&, const BreakBehaviorSnapshot&) = default;
};

// The timing a named preset installs; behaviour fields are not part of it.
struct PresetTiming {
    double workInterval = 0;
    double shortBreakDuration = 0;
    bool longBreakEnabled = false;
    double longBreakDuration = 0;
    qint64 longBreakFrequency = 0;

    friend bool operator==(const PresetTiming&, const PresetTiming&) = default;
};

// How long the user works between breaks, how long breaks last and how strict they are.
// Durations are seconds. Nothing is clamped here: the settings controls keep values in range.
struct BreakConfiguration {
    Q_GADGET
    Q_PROPERTY(double workInterval MEMBER workInterval)
    Q_PROPERTY(double shortBreakDuration MEMBER shortBreakDuration)
    Q_PROPERTY(bool longBreakEnabled MEMBER longBreakEnabled)
    Q_PROPERTY(double longBreakDuration MEMBER longBreakDuration)
    Q_PROPERTY(qint64 longBreakFrequency MEMBER longBreakFrequency)
    Q_PROPERTY(velto::SkipDifficulty skipDifficulty MEMBER skipDifficulty)
    Q_PROPERTY(bool delayWhileTyping MEMBER delayWhileTyping)
    Q_PROPERTY(bool allowEarlyEnd MEMBER allowEarlyEnd)
    Q_PROPERTY(bool lockScreenOnBreak MEMBER lockScreenOnBreak)

public:
    double workInterval = 1200;
    double shortBreakDuration = 20;
    bool longBreakEnabled = false;
    double longBreakDuration = 300;
    qint64 longBreakFrequency = 4;
    SkipDifficulty skipDifficulty = SkipDifficulty::Balanced;
    bool delayWhileTyping = true;
    bool allowEarlyEnd = true;
    bool lockScreenOnBreak = false;

    friend bool operator==(const BreakConfiguration&, const BreakConfiguration&) = default;

    // The preset's timing with the default behaviour fields: what applying a named preset installs.
    [[nodiscard]] static BreakConfiguration withTiming(const PresetTiming& timing);

    [[nodiscard]] BreakBehaviorSnapshot behaviorSnapshot() const;
    [[nodiscard]] PresetTiming timing() const;
    // The first named preset whose timing this is; Custom when none.
    [[nodiscard]] BreakPresetKind matchingPreset() const;
    // Looser than matchingPreset: long-break length and frequency only count when the preset has long breaks.
    [[nodiscard]] bool timingMatches(BreakPresetKind preset) const;

    [[nodiscard]] QJsonObject toJson() const;
    // Nothing unless all nine members are present with the right types and a known difficulty.
    [[nodiscard]] static std::optional<BreakConfiguration> fromJson(const QJsonObject& object);
};

// Custom has no timing of its own.
[[nodiscard]] std::optional<PresetTiming> presetTiming(BreakPresetKind preset);

} // namespace velto
