// The record of a job on its way in: what it may hold, and what the library makes of its numbers.
#ifndef BARHATCH_MARK_JOBRECORD_H
#define BARHATCH_MARK_JOBRECORD_H

#include "barhatch_mark.h"
#include "datamatrix/PublishedSizes.h"
#include "job/Deviations.h"
#include "job/Job.h"
#include "mark/Message.h"
#include "symbologies/Preparation.h"

namespace barhatch {

// Copies the part of the record that this version knows. False, with a sentence, for null, a record
// smaller than this version's, one with other bytes than zero behind it and a size that is no
// record's.
bool CopyRecord(const BarhatchJob* record, BarhatchJob& job, Message message);

// BARHATCH_OK, or the status of the first number that makes no sense, with a sentence.
std::int32_t CheckOptions(const BarhatchJob& job, Message message);
std::int32_t CheckGeometry(const BarhatchJob& job, Message message);

// Of checked jobs.
bool IsMatrix(const BarhatchJob& job);
bool Wants(const BarhatchJob& job, BarhatchWant what);
bool HasSize(const BarhatchJob& job);  // a whole one; a job that wants strokes has it
DeviationSet InForce(const BarhatchJob& job);
LinearOptions LinearOptionsOf(const BarhatchJob& job);
std::int32_t QuietModulesOf(const BarhatchJob& job);
double RatioOf(const BarhatchJob& job);
bool HasBearerBars(const BarhatchJob& job);
Header HeaderOf(const BarhatchJob& job);
Shape ShapeOf(const BarhatchJob& job);

// What to warn of where the quiet zone is smaller than the standard's.
std::uint32_t SmallQuietZoneWarning(const BarhatchJob& job);

// True where the quiet zone is a part of the drawn symbol: it lies inside the size, it is marked,
// or bearer bars reach over it.
bool DrawsQuietZone(const BarhatchJob& job);

// The modules of it, as QuietModulesOf; kNoQuietZone where it is none.
std::int32_t DrawnQuietModulesOf(const BarhatchJob& job);

}  // namespace barhatch

#endif
