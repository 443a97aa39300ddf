#include "BreakConfiguration.h"

#include "JsonRecord.h"

using namespace Qt::Literals::StringLiterals;

namespace velto {

std::optional<PresetTiming> presetTiming(BreakPresetKind preset)
{
    switch (preset) {
    case BreakPresetKind::Balanced:
        // Balanced leaves the long-break values at zero, unlike the first-start default of 300 s every 4.
        return PresetTiming{1200, 20, false, 0, 0};
    case BreakPresetKind::DeepFocus:
        return PresetTiming{2700, 30, true, 300, 3};
    case BreakPresetKind::EyeCare:
        return PresetTiming{900, 15, true, 180, 4};
    case BreakPresetKind::Custom:
        break;
    }
    return std::nullopt;
}

BreakConfiguration BreakConfiguration::withTiming(const PresetTiming& timing)
{
    BreakConfiguration configuration;
    configuration.workInterval = timing.workInterval;
    configuration.shortBreakDuration = timing.shortBreakDuration;
    configuration.longBreakEnabled = timing.longBreakEnabled;
    configuration.longBreakDuration = timing.longBreakDuration;
    configuration.longBreakFrequency = timing.longBreakFrequency;
    return configuration;
}

BreakBehaviorSnapshot BreakConfiguration::behaviorSnapshot() const
{
    return {skipDifficulty, delayWhileTyping, allowEarlyEnd, lockScreenOnBreak};
}

PresetTiming BreakConfiguration::timing() const
{
    return {workInterval, shortBreakDuration, longBreakEnabled, longBreakDuration, longBreakFrequency};
}

BreakPresetKind BreakConfiguration::matchingPreset() const
{
    // Balanced ignores the long-break length and frequency; the others compare all five timing fields.
    if (workInterval == 1200 && shortBreakDuration == 20 && !longBreakEnabled)
        return BreakPresetKind::Balanced;
    for (const BreakPresetKind preset : {BreakPresetKind::DeepFocus, BreakPresetKind::EyeCare}) {
        if (timing() == presetTiming(preset))
            return preset;
    }
    return BreakPresetKind::Custom;
}

bool BreakConfiguration::timingMatches(BreakPresetKind preset) const
{
    const std::optional<PresetTiming> wanted = presetTiming(preset);
    if (!wanted)
        return false;
    if (workInterval != wanted->workInterval || shortBreakDuration != wanted->shortBreakDuration ||
        longBreakEnabled != wanted->longBreakEnabled)
        return false;
    if (!wanted->longBreakEnabled)
        return true;
    return longBreakDuration == wanted->longBreakDuration && longBreakFrequency == wanted->longBreakFrequency;
}

QJsonObject BreakConfiguration::toJson() const
{
    return {
        {u"workInterval"_s, workInterval},
        {u"shortBreakDuration"_s, shortBreakDuration},
        {u"longBreakEnabled"_s, longBreakEnabled},
        {u"longBreakDuration"_s, longBreakDuration},
        {u"longBreakFrequency"_s, longBreakFrequency},
        {u"skipDifficulty"_s, rawValue(skipDifficulty)},
        {u"delayWhileTyping"_s, delayWhileTyping},
        {u"allowEarlyEnd"_s, allowEarlyEnd},
        {u"lockScreenOnBreak"_s, lockScreenOnBreak},
    };
}

std::optional<BreakConfiguration> BreakConfiguration::fromJson(const QJsonObject& object)
{
    JsonReader reader(object);
    BreakConfiguration c;
    c.workInterval = reader.number(u"workInterval");
    c.shortBreakDuration = reader.number(u"shortBreakDuration");
    c.longBreakEnabled = reader.boolean(u"longBreakEnabled");
    c.longBreakDuration = reader.number(u"longBreakDuration");
    c.longBreakFrequency = reader.integer(u"longBreakFrequency");
    c.skipDifficulty = reader.enumeration(u"skipDifficulty", c.skipDifficulty);
    c.delayWhileTyping = reader.boolean(u"delayWhileTyping");
    c.allowEarlyEnd = reader.boolean(u"allowEarlyEnd");
    c.lockScreenOnBreak = reader.boolean(u"lockScreenOnBreak");
    if (!reader.ok())
        return std::nullopt;
    return c;
}

} // namespace velto
