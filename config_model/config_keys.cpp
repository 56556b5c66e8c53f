#include "config_model/config_keys.h"

#include "config_model/xml_workdata.h"
#include "config_model/zrk_track_caps.h"
