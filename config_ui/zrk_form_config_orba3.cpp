#include "config_ui/zrk_form_config_orba3.h"

ZRK_Form_Config_Orba3::ZRK_Form_Config_Orba3(QWidget* parent)
    : ZRK_Form_Config_Set_Orba3(parent)
{
    setFormCreate();
    setDefaultParam();
}

void ZRK_Form_Config_Orba3::setFormCreate()
{
    if (!tabs().isEmpty())
        return;
    createTab_Main(0);
    createTab_Navi();
    createTab_RS(false, true, true);
    createTab_CAN();
    createTab_Taho();
    createTab_Accel();
    createTab_Refr();
    createTab_FFS();
    createTab_More();
    createTab_User();

    setDeviceUseState(true, true);
    setUseDefState2(true);
    setDeviceAlwaysUseState(false, true);
    setDeviceUseModule(true, true, true);
    setDeviceAlwaysUseModule(false, false, true);
    setDeviceUseGSM(true, true);
    setDeviceUseMotochas(true, true, true);
    setDeviceEnabledMotochasMore(false);
    setMaxCountLinesOut(8);
    setMaxCountStateIn(16);
    setMaxCountLinesIn(6);
    setMaxCountSensorsTemp(8);
    setDeviceUseNaviMore(true, false);
    setDeviceUseLBS(true);
    setDeviceUseCANState(true);
    setDeviceUsePassager(true);
    setDeviceUseTires(true);
    setDeviceUseDisp(true);
    setDeviceUseVAccelAxels(true);
    setDeviceUseAinf(true);
    setDeviceUseCamera(true);
    setMaxCountHighPrecisionTemp(4);
    setMaxCountHighPrecisionHumidity(4);
    translateForm();
}
