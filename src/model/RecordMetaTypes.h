#pragma once

// Makes the records known to Qt's type system by name, so that they travel through queued signals and QVariant.
// CommonData's source runs it while the library loads; a further call changes nothing.
// Any thread.

/// Registers the record types under their names; true.
bool registerRecordMetaTypes();
