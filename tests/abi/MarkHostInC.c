/* A host of the mark interface in plain C. */
#include <math.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "barhatch_mark.h"

static int failures = 0;

static void Check(int holds, const char* what) {
  if (!holds) {
    printf("failed: %s\n", what);
    ++failures;
  }
}

static BarhatchJob PlainJob(int32_t symbology, const char* text) {
  BarhatchJob job;
  memset(&job, 0, sizeof job);
  job.size = sizeof job;
  job.symbology = symbology;
  job.text = text;
  job.x_dimension = 0.5;
  job.height = 12.0;
  job.gap = 0.1;
  return job;
}

/* The example of the header: a job of zeros, and what matters. */
static void CheckMark(void) {
  BarhatchJob job = {0};
  BarhatchResult result = {0};
  job.size = sizeof job;
  job.symbology = BARHATCH_CODE_39;
  job.text = "ABC-123";
  job.x_dimension = 0.5;
  job.height = 12.0;
  job.gap = 0.1;
  result.size = sizeof result;
  Check(BarhatchMark(&job, &result) == BARHATCH_OK, "the example of the header is marked");
  Check(result.status == BARHATCH_OK && result.message[0] == '\0', "nothing is said about it");
  Check(result.kind == BARHATCH_SEGMENTS && result.strokes_count > 0, "it has strokes");
  /* Nine characters of 15 modules, eight gaps. */
  Check(result.columns == 9 * 9 + 8 && result.symbol[2] == 0.5 * (9 * 15 + 8), "its size");
  Check(strcmp(result.reading, "ABC-123") == 0 && strcmp(result.hri, "ABC-123") == 0,
        "a reader reads it");
  Check(strcmp(result.name, "Code 39") == 0, "its name");
  BarhatchRelease(&result);
  Check(result.strokes == NULL && result.block == NULL, "released");
  BarhatchRelease(&result);
  BarhatchRelease(NULL);
}

static void CheckRefusal(void) {
  BarhatchJob job = PlainJob(BARHATCH_CODE_39, "ABC\xC3\xA9");
  BarhatchResult result;
  memset(&result, 0, sizeof result);
  result.size = sizeof result;
  Check(BarhatchMark(&job, &result) == BARHATCH_BAD_CHARACTER, "refused");
  Check(result.position == 4 && result.extent == 2, "the character is named");
  Check(strstr(result.message, "(0xE9) is not in Code 39") != NULL, "and the sentence says so");
  BarhatchRelease(&result);
}

static void CheckMatrix(void) {
  BarhatchJob job = PlainJob(BARHATCH_DATA_MATRIX, "123456");
  BarhatchResult result;
  memset(&result, 0, sizeof result);
  result.size = sizeof result;
  job.conformance = BARHATCH_DEVICE;
  job.height = 0.0;
  job.pattern = BARHATCH_POINTS;
  Check(BarhatchMark(&job, &result) == BARHATCH_OK && result.kind == BARHATCH_DOTS,
        "a matrix of dots");
  Check(result.rows == 10 && result.columns == 10, "ten rows of ten");
  Check(fabs(result.total[2] - 5.5) < 1e-12, "a quiet zone of one module around it");
  Check((result.modules[0] & BARHATCH_DARK) == 1 && result.modules[1] == 0,
        "the clock of the top row");
  BarhatchRelease(&result);
}

static int blocks = 0;

static void* Allocate(void* context, size_t bytes) {
  Check(context == &blocks, "the host's own context");
  ++blocks;
  return malloc(bytes);
}

static void Release(void* context, void* block) {
  Check(context == &blocks && block != NULL, "the host's own context");
  --blocks;
  free(block);
}

static void CheckMemory(void) {
  BarhatchJob job = PlainJob(BARHATCH_EAN_13, "950110153100");
  BarhatchResult result;
  memset(&result, 0, sizeof result);
  result.size = sizeof result;
  job.allocate = Allocate;
  job.release = Release;
  job.context = &blocks;
  Check(BarhatchMark(&job, &result) == BARHATCH_OK && blocks == 1, "one block is the result's");
  BarhatchRelease(&result);
  Check(blocks == 0, "and it comes back");
}

int main(void) {
  CheckMark();
  CheckRefusal();
  CheckMatrix();
  CheckMemory();
  Check(strcmp(BarhatchVersion(), BARHATCH_VERSION) == 0, "the version of the header");
  printf("%d checks failed\n", failures);
  return failures == 0 ? 0 : 1;
}
