#pragma once

/// The field of a wire record, with its flag set: `TALVO_FLAGGED(destination, camera) = ...` stores value and flag in
/// one row. A macro, since the flags are bit-fields, to which no reference can be bound.
#define TALVO_FLAGGED(record, field) ((record).__isset.field = true, (record).field)
