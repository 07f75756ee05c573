#include "gs1/PartnerRules.h"

namespace barhatch {

namespace {

// Lists of identifiers, n for any digit. In `needs` a comma stands between alternatives, + between
// those that are needed together. In `notWith` = is every other one with the same three digits in
// front.
struct PartnerRule {
  const char* ais;
  const char* needs;    // one of the alternatives; empty: none is needed
  const char* notWith;  // none of these; empty: it goes with all
};

// GS1 General Specifications, section 4.13: pairs that do not go together, and associations.
// clang-format off
constexpr PartnerRule kPartnerRules[] = {
    {"01",              "",                       "255,37"},
    {"02",              "37",                     "01,03"},
    {"03",              "",                       "01,02,37,235"},
    {"10,11,13,15,16,20,240,241",
                        "01,02,03,8006,8026",     ""},
    {"12,415",          "8020",                   ""},
    {"17",              "01,02,03,255,8006,8026", ""},
    {"21",              "01,03,8006",             "235"},
    {"22,235,71n,8001,8014,8200",
                        "01",                     ""},
    {"242,7001",        "01,02,8006,8026",        ""},
    {"243",             "01,03",                  ""},
    {"250",             "01+21,03+21,8006+21",    ""},
    {"251,7021,8012",   "01,03,8006",             ""},
    {"254",             "414",                    ""},
    {"255",             "",                       "01,02,415,8006,8020,8026"},
    {"30,7002,7005,7006,7007,7008,7009,703n,8005",
                        "01,02",                  ""},
    {"31nn,32nn,350n,351n,352n,356n,357n,360n,361n,364n,365n,366n",
                        "01,02",                  "="},
    {"330n,331n,332n,333n,334n,335n,336n,34nn,353n,354n,355n,362n,363n,367n,368n,369n",
                        "00,01",                  "="},
    {"337n",            "01",                     "="},
    {"37",              "00+02,00+8026",          ""},
    {"390n",            "255,8020",               "=,391n,394n,8111"},
    {"391n",            "8020",                   "="},
    {"392n",            "01+30,01+31nn,01+32nn,01+35nn,01+36nn",
                                                  "=,393n"},
    {"393n",            "30,31nn,32nn,35nn,36nn", "="},
    {"394n",            "255",                    "=,8111"},
    {"395n",            "30,31nn,32nn,35nn,36nn", "=,392n,393n,8005"},
    {"403,4300,4301,4302,4304,4305,4306,4307,4308,4309,4310,4311,4312,4314,4315,4316,4317,4318,4319,"
     "432n,433n,7041",
                        "00",                     ""},
    {"420",             "",                       "421"},
    {"421",             "",                       "4307"},
    {"422",             "01,02,03,8006,8026",     "426"},
    {"423,424,425",     "01,02,03",               "426"},
    {"426,7003,7010,7011,8008",
                        "01,02,03",               ""},
    {"427",             "01+422,02+422,03+422",   ""},
    {"4303",            "4302",                   ""},
    {"4313",            "4312",                   ""},
    {"4330",            "",                       "4331"},
    {"4332",            "",                       "4333"},
    {"7004",            "01+10,03+10",            ""},
    {"7020",            "01+416,03+416,8006+416", ""},
    {"7022",            "01+7021,03+7021,8006+7021",
                                                  ""},
    {"723n",            "01,8004",                ""},
    {"7240",            "01,8006",                "03"},
    {"7241,7242,7256,8019",
                        "8017,8018",              ""},
    {"7250,7251,7252,7257",
                        "8018",                   ""},
    {"7250",            "",                       "7251"},
    {"7253,7254,7255",  "8017,8018",              "7256,7259"},
    {"7258",            "8018+7259",              ""},
    {"7259",            "8018",                   "7256"},
    {"8006",            "",                       "01,03,37"},
    {"8007,8020",       "415",                    ""},
    {"8009",            "00,01,03",               ""},
    {"8011",            "8010",                   ""},
    {"8017",            "",                       "8018"},
    {"8026",            "37",                     "02,03,8006"},
    {"8030",            "00,01+21,03+21,253,255,8003,8004,8006+21,8010+8011,8017,8018",
                                                  ""},
    {"8040",            "01+21",                  ""},
    {"8041,8042,8043",  "01+21+8040",             ""},
    {"8111",            "255",                    ""},
};
// clang-format on

struct AiSpan {
  AiCode first;
  AiCode last;
};

constexpr AiCode kNoAi = 0;

// Reads "31nn" at the front of a list and leaves the list behind it.
AiSpan TakeSpan(const char*& list) {
  int first = 1;
  int last = 1;
  for (; *list == 'n' || (*list >= '0' && *list <= '9'); ++list) {
    first = first * 10 + (*list == 'n' ? 0 : *list - '0');
    last = last * 10 + (*list == 'n' ? 9 : *list - '0');
  }
  return {static_cast<AiCode>(first), static_cast<AiCode>(last)};
}

// Steps over one sign between the items of a list.
bool StepOver(const char*& list, char sign) {
  if (*list != sign) return false;
  ++list;
  return true;
}

bool HasAny(const AiPresence& presence, const AiSpan& span) {
  return presence.HasAny(span.first, span.last, kNoAi);
}

// Every "+" of the alternative is looked at, so that the list stands behind it.
bool HasAlternative(const AiPresence& presence, const char*& list) {
  bool hasAll = true;
  do {
    if (!HasAny(presence, TakeSpan(list))) hasAll = false;
  } while (StepOver(list, '+'));
  return hasAll;
}

bool HasWhatIsNeeded(const AiPresence& presence, const char* needs) {
  if (*needs == '\0') return true;
  do {
    if (HasAlternative(presence, needs)) return true;
  } while (StepOver(needs, ','));
  return false;
}

// Whether two of the span are there that begin with the same three of four digits.
bool HasTwins(const AiPresence& presence, const AiSpan& span) {
  for (int ai = span.first; ai <= span.last; ++ai) {
    const auto one = static_cast<AiCode>(ai);
    const auto first = static_cast<AiCode>(ai - ai % 10);
    const auto last = static_cast<AiCode>(first + 9);
    if (presence.HasAny(one, one, kNoAi) && presence.HasAny(first, last, one)) return true;
  }
  return false;
}

bool HasStranger(const AiPresence& presence, const AiSpan& of, const char* notWith) {
  if (*notWith == '\0') return false;
  do {
    const bool isThere =
        StepOver(notWith, '=') ? HasTwins(presence, of) : HasAny(presence, TakeSpan(notWith));
    if (isThere) return true;
  } while (StepOver(notWith, ','));
  return false;
}

bool Holds(const AiPresence& presence, const PartnerRule& rule) {
  const char* ais = rule.ais;
  do {
    const AiSpan span = TakeSpan(ais);
    if (!HasAny(presence, span)) continue;
    if (!HasWhatIsNeeded(presence, rule.needs)) return false;
    if (HasStranger(presence, span, rule.notWith)) return false;
  } while (StepOver(ais, ','));
  return true;
}

}  // namespace

void AiPresence::Add(const AiRange& range, AiCode ai) {
  hasPrefix_[FirstTwoOf(ai)] = true;
  isPresent_[IndexOfAi(range, ai)] = true;
}

bool AiPresence::HasAny(AiCode first, AiCode last, AiCode except) const {
  if (!hasPrefix_[FirstTwoOf(first)]) return false;
  for (int code = first; code <= last; ++code) {
    const auto ai = static_cast<AiCode>(code);
    const AiRange* const range = FindAi(ai);
    if (ai != except && range != nullptr && isPresent_[IndexOfAi(*range, ai)]) return true;
  }
  return false;
}

bool HaveTheirPartners(const AiPresence& presence) {
  for (const PartnerRule& rule : kPartnerRules) {
    if (!Holds(presence, rule)) return false;
  }
  return true;
}

}  // namespace barhatch
