#pragma once

#include <QtGlobal>

namespace velto {

// Assigns a published field the way every observable component does: objectWillChange() first, then the
// store, then the field's change signal with the new value. Also when the value is unchanged, so observers
// that count assignments see each one.
template <typename Owner, typename T, typename Arg>
void publish(Owner* owner, T& field, const T& value, void (Owner::*changed)(Arg))
{
    const T newValue = value; // value may alias field
    Q_EMIT owner->objectWillChange();
    field = newValue;
    Q_EMIT(owner->*changed)(newValue);
}

} // namespace velto
