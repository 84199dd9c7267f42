# A parcel service chooses its depots.
#
# A depot that is opened costs money a year and handles no more than it can. Each town is served by one depot, for a cost
# that grows with the distance, and by none that is too far away.

set DEPOTS;
set TOWNS;

param rent{DEPOTS} >= 0;                 # euros a year
param capacity{DEPOTS} > 0;              # parcels a day
param parcels{TOWNS} > 0;                # a day
param km{DEPOTS, TOWNS} >= 0;
param farthest > 0;
param euros > 0;                         # for a parcel and kilometre, for a year of working days

set LINKS within {DEPOTS, TOWNS} := setof{d in DEPOTS, t in TOWNS: km[d, t] <= farthest} (d, t);

check{t in TOWNS}: exists{d in DEPOTS} km[d, t] <= farthest;

var open{DEPOTS} binary;
var serves{LINKS} binary;

minimize total:
    sum{d in DEPOTS} rent[d] * open[d] + sum{(d, t) in LINKS} euros * km[d, t] * parcels[t] * serves[d, t];

s.t. once{t in TOWNS}: sum{(d, t) in LINKS} serves[d, t] = 1;
s.t. room{d in DEPOTS}: sum{(d, t) in LINKS} parcels[t] * serves[d, t] <= capacity[d] * open[d];
s.t. opened{(d, t) in LINKS}: serves[d, t] <= open[d];

end;
