#pragma once

#include "config_ui/zrk_form_config_set_orba3.h"

// This model's record field set: which tabs exist and which peripherals, inputs and sensors the
// terminal has, so that only fields it can record are offered.
class ZRK_Form_Config_Orba3 : public ZRK_Form_Config_Set_Orba3
{
    Q_OBJECT

public:
    explicit ZRK_Form_Config_Orba3(QWidget* parent = nullptr);
    // Builds the tabs and describes the model to them; later calls do nothing.
    void setFormCreate();
};
