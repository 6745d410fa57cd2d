#pragma once

/// Sets the flag of a wire record's field and gives the field: `TALVO_FLAGGED(destination, camera) = ...` stores value
/// and flag in one line. It is a macro because the flags are bit-fields, to which references can't bind.
#define TALVO_FLAGGED(record, field) ((record).__isset.field = true, (record).field)
