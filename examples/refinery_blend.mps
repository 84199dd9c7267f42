* A week at a small refinery: which crude oils to run, and how to blend
* petrol.
*
* Three crude oils are distilled. The light naphtha goes to the isomerization
* unit or straight to the blend, the heavy naphtha to the reformer, the vacuum
* gas oil to the catalytic cracker, whose olefins become alkylate. Six
* components, more butane and the octane booster MTBE, which are bought, are
* blended into three grades of petrol: regular (R), premium (P) and super (S).
* Every grade has a least research octane number, a greatest vapour pressure,
* a greatest content of aromatics, and at most 15 % MTBE. Diesel and fuel oil
* are sold as they come.
*
* Quantities are thousands of cubic metres in the week, money is thousands of
* euros. The objective COST is what crude, additives and processing cost less
* what the products earn, so it is to be minimized, and a profit shows as a
* negative value. Octane numbers and vapour pressures (in kilopascals) are
* taken to blend by volume. A quality row holds the difference between
* component and grade, so that its limit is 0.
NAME          REFINERY
ROWS
 N  COST
* What is made of each stream is used up
 E  BALBUT
 E  BALLNA
 E  BALHNA
 E  BALGOI
 E  BALVGO
 E  BALRES
 E  BALOLE
 E  BALISO
 E  BALREF
 E  BALCAT
 E  BALALK
 E  BALMTB
* Capacities of the units
 L  CDISTIL
 L  CREFORM
 L  CISOMER
 L  CCRACK
 L  CALKYL
* Petrol: volume, octane number, vapour pressure, aromatics, MTBE of each grade
 E  VOLR
 G  OCTR
 L  RVPR
 L  AROR
 L  OXYR
 E  VOLP
 G  OCTP
 L  RVPP
 L  AROP
 L  OXYP
 E  VOLS
 G  OCTS
 L  RVPS
 L  AROS
 L  OXYS
COLUMNS
* Crude oil run (North Sea, Gulf, heavy), at its price and 9 for distilling
    RUNNSEA   COST               416   CDISTIL              1
    RUNNSEA   BALBUT            0.02   BALLNA            0.09
    RUNNSEA   BALHNA            0.17   BALGOI            0.33
    RUNNSEA   BALVGO            0.26   BALRES            0.11
    RUNGULF   COST               397   CDISTIL              1
    RUNGULF   BALBUT           0.015   BALLNA           0.065
    RUNGULF   BALHNA           0.135   BALGOI           0.295
    RUNGULF   BALVGO            0.29   BALRES            0.18
    RUNHEAVY  COST               350   CDISTIL              1
    RUNHEAVY  BALBUT            0.01   BALLNA            0.04
    RUNHEAVY  BALHNA             0.1   BALGOI            0.25
    RUNHEAVY  BALVGO            0.31   BALRES            0.27
* Units, by what goes into them
    REFORM    COST                14   CREFORM              1
    REFORM    BALHNA              -1   BALREF            0.83
    REFORM    BALBUT            0.05
    ISOMER    COST                11   CISOMER              1
    ISOMER    BALLNA              -1   BALISO            0.98
    CRACK     COST                19   CCRACK               1
    CRACK     BALVGO              -1   BALCAT            0.54
    CRACK     BALGOI            0.22   BALOLE            0.16
    CRACK     BALRES            0.08
    ALKYL     COST                24   CALKYL               1
    ALKYL     BALOLE              -1   BALALK            1.08
    ALKYL     BALBUT            -0.3
* Butane and MTBE bought
    BUYBUT    COST               365   BALBUT               1
    BUYMTB    COST               655   BALMTB               1
* Olefins, light naphtha and heavy naphtha that are sold instead of used
    OLEGAS    COST              -190   BALOLE              -1
    LNASELL   COST              -402   BALLNA              -1
    HNASELL   COST              -415   BALHNA              -1
* Components in regular: octane 91, at most 60 kPa and 42 % aromatics
    BUTINR    BALBUT              -1   VOLR                 1
    BUTINR    OCTR                 3   RVPR               300
    BUTINR    AROR               -42   OXYR               -15
    LNAINR    BALLNA              -1   VOLR                 1
    LNAINR    OCTR               -22   RVPR                18
    LNAINR    AROR               -40   OXYR               -15
    ISOINR    BALISO              -1   VOLR                 1
    ISOINR    OCTR                -4   RVPR                32
    ISOINR    AROR               -42   OXYR               -15
    REFINR    BALREF              -1   VOLR                 1
    REFINR    OCTR                 8   RVPR               -38
    REFINR    AROR                21   OXYR               -15
    CATINR    BALCAT              -1   VOLR                 1
    CATINR    OCTR               1.5   RVPR               -14
    CATINR    AROR               -13   OXYR               -15
    ALKINR    BALALK              -1   VOLR                 1
    ALKINR    OCTR               4.5   RVPR               -28
    ALKINR    AROR               -42   OXYR               -15
    MTBINR    BALMTB              -1   VOLR                 1
    MTBINR    OCTR                25   RVPR                -5
    MTBINR    AROR               -42   OXYR                85
* Components in premium: octane 95, at most 60 kPa and 35 % aromatics
    BUTINP    BALBUT              -1   VOLP                 1
    BUTINP    OCTP                -1   RVPP               300
    BUTINP    AROP               -35   OXYP               -15
    LNAINP    BALLNA              -1   VOLP                 1
    LNAINP    OCTP               -26   RVPP                18
    LNAINP    AROP               -33   OXYP               -15
    ISOINP    BALISO              -1   VOLP                 1
    ISOINP    OCTP                -8   RVPP                32
    ISOINP    AROP               -35   OXYP               -15
    REFINP    BALREF              -1   VOLP                 1
    REFINP    OCTP                 4   RVPP               -38
    REFINP    AROP                28   OXYP               -15
    CATINP    BALCAT              -1   VOLP                 1
    CATINP    OCTP              -2.5   RVPP               -14
    CATINP    AROP                -6   OXYP               -15
    ALKINP    BALALK              -1   VOLP                 1
    ALKINP    OCTP               0.5   RVPP               -28
    ALKINP    AROP               -35   OXYP               -15
    MTBINP    BALMTB              -1   VOLP                 1
    MTBINP    OCTP                21   RVPP                -5
    MTBINP    AROP               -35   OXYP                85
* Components in super: octane 98, at most 60 kPa and 35 % aromatics
    BUTINS    BALBUT              -1   VOLS                 1
    BUTINS    OCTS                -4   RVPS               300
    BUTINS    AROS               -35   OXYS               -15
    LNAINS    BALLNA              -1   VOLS                 1
    LNAINS    OCTS               -29   RVPS                18
    LNAINS    AROS               -33   OXYS               -15
    ISOINS    BALISO              -1   VOLS                 1
    ISOINS    OCTS               -11   RVPS                32
    ISOINS    AROS               -35   OXYS               -15
    REFINS    BALREF              -1   VOLS                 1
    REFINS    OCTS                 1   RVPS               -38
    REFINS    AROS                28   OXYS               -15
    CATINS    BALCAT              -1   VOLS                 1
    CATINS    OCTS              -5.5   RVPS               -14
    CATINS    AROS                -6   OXYS               -15
    ALKINS    BALALK              -1   VOLS                 1
    ALKINS    OCTS              -2.5   RVPS               -28
    ALKINS    AROS               -35   OXYS               -15
    MTBINS    BALMTB              -1   VOLS                 1
    MTBINS    OCTS                18   RVPS                -5
    MTBINS    AROS               -35   OXYS                85
* Petrol sold
    SELLR     COST              -528   VOLR                -1
    SELLP     COST              -561   VOLP                -1
    SELLS     COST              -604   VOLS                -1
* Diesel, and fuel oil of residue, vacuum gas oil and a dash of gas oil
    DIESEL    COST              -512   BALGOI              -1
    FUELRES   COST              -292   BALRES              -1
    FUELVGO   COST              -304   BALVGO              -1
RHS
    RHS       CDISTIL             82   CREFORM             11
    RHS       CISOMER            4.5   CCRACK              21
    RHS       CALKYL             3.2
BOUNDS
* Crude oil on offer
 UP LIMIT     RUNNSEA             30
 UP LIMIT     RUNGULF             45
 UP LIMIT     RUNHEAVY            35
* Butane and MTBE on offer
 UP LIMIT     BUYBUT             1.5
 UP LIMIT     BUYMTB               2
* Petrol promised to customers, and the most that the market takes
 LO LIMIT     SELLR                4
 UP LIMIT     SELLR               24
 LO LIMIT     SELLP                2
 UP LIMIT     SELLP               14
 LO LIMIT     SELLS              1.2
 UP LIMIT     SELLS                4
* Diesel and fuel oil that the market takes
 UP LIMIT     DIESEL              40
 UP LIMIT     FUELRES             22
ENDATA
