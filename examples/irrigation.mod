# A farm's cooperative shares out its land and its water for a season.
#
# Each hectare of a crop wants water month by month. The canal brings so much a month, and what isn't used is kept in a
# pond that holds little. Every crop is paid well up to a contract and badly beyond it.

set CROPS;
param monthCount integer > 0;
set MONTHS := 1 .. monthCount;

param land > 0;                          # hectares
param canal{MONTHS} >= 0;                # thousand cubic metres a month
param pond >= 0;                         # most that the pond holds, in the same
param water{CROPS, MONTHS} >= 0;         # that a hectare takes, in cubic metres
param harvest{CROPS} > 0;                # tons of a hectare
param cost{CROPS} >= 0;                  # euros for a hectare
param price{CROPS} > 0;                  # euros for a ton of the contract
param contract{CROPS} >= 0;              # tons
param spotPrice{c in CROPS} >= 0, <= price[c];

var hectares{CROPS} >= 0;
var sold{c in CROPS} >= 0, <= contract[c];
var spot{CROPS} >= 0;
var stored{m in 0 .. monthCount} >= 0, <= pond;

maximize profit:
    sum{c in CROPS} (price[c] * sold[c] + spotPrice[c] * spot[c] - cost[c] * hectares[c]);

s.t. fields: sum{c in CROPS} hectares[c] <= land;
s.t. crop{c in CROPS}: sold[c] + spot[c] = harvest[c] * hectares[c];
s.t. empty: stored[0] = 0;
s.t. balance{m in MONTHS}:
    stored[m - 1] + canal[m] >= stored[m] + sum{c in CROPS} water[c, m] / 1000 * hectares[c];

end;
