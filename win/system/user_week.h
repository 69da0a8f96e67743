// How the user's language counts weeks.
#pragma once

namespace varnel {

// The day that a week begins with, 0 Sunday to 6 Saturday.
int UserFirstWeekday();

// The first week of a year: 0 the one with 1 January, 1 the first whole one, 2 the first with at
// least four days in the year.
int UserFirstWeekRule();

}  // namespace varnel
