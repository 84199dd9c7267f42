# Farms bring their grain to mills. Which mills are rented for the season, and which lorries drive where, so that rents and
# driving cost least? Grain may be split; lorries and mills may not.

set FARMS;
set MILLS;

param harvest {FARMS} >= 0;             # tonnes
param capacity {MILLS} > 0;             # tonnes
param rent {MILLS} >= 0;                # euros for the season
param distance {FARMS, MILLS} >= 0;     # kilometres, one way
param lorry default 24;                 # tonnes that a lorry takes
param price default 2.1;                # euros for a kilometre

check: sum {m in MILLS} capacity[m] >= sum {f in FARMS} harvest[f];

var grain {FARMS, MILLS} >= 0;          # tonnes
var trips {FARMS, MILLS} >= 0 integer;
var rented {MILLS} binary;

minimize cost:
    sum {m in MILLS} rent[m] * rented[m] + sum {f in FARMS, m in MILLS} 2 * price * distance[f, m] * trips[f, m];

subject to all_is_milled {f in FARMS}: sum {m in MILLS} grain[f, m] = harvest[f];
subject to room {m in MILLS}: sum {f in FARMS} grain[f, m] <= capacity[m] * rented[m];
subject to load {f in FARMS, m in MILLS}: grain[f, m] <= lorry * trips[f, m];
