# Upgrade service and extractor sources are added here.
