xabgap = nan
