#include <iterator>

#include "cdu/unit/items.h"
#include "cdu/unit/keypad.h"
#include "module/controls/panels.h"
#include "state/side.h"

namespace {

template <int kSide, char kCharacter>
void Type(int) {
    OnCduKeyChar(kSide, kCharacter);
}

constexpr Control kKeypads[] = {
    Key("TZ_FMC_L_A_Button", Type<kCaptain, 'A'>),
    Key("TZ_FMC_L_B_Button", Type<kCaptain, 'B'>),
    Key("TZ_FMC_L_C_Button", Type<kCaptain, 'C'>),
    Key("TZ_FMC_L_D_Button", Type<kCaptain, 'D'>),
    Key("TZ_FMC_L_E_Button", Type<kCaptain, 'E'>),
    Key("TZ_FMC_L_F_Button", Type<kCaptain, 'F'>),
    Key("TZ_FMC_L_G_Button", Type<kCaptain, 'G'>),
    Key("TZ_FMC_L_H_Button", Type<kCaptain, 'H'>),
    Key("TZ_FMC_L_I_Button", Type<kCaptain, 'I'>),
    Key("TZ_FMC_L_J_Button", Type<kCaptain, 'J'>),
    Key("TZ_FMC_L_K_Button", Type<kCaptain, 'K'>),
    Key("TZ_FMC_L_L_Button", Type<kCaptain, 'L'>),
    Key("TZ_FMC_L_M_Button", Type<kCaptain, 'M'>),
    Key("TZ_FMC_L_N_Button", Type<kCaptain, 'N'>),
    Key("TZ_FMC_L_O_Button", Type<kCaptain, 'O'>),
    Key("TZ_FMC_L_P_Button", Type<kCaptain, 'P'>),
    Key("TZ_FMC_L_Q_Button", Type<kCaptain, 'Q'>),
    Key("TZ_FMC_L_R_Button", Type<kCaptain, 'R'>),
    Key("TZ_FMC_L_S_Button", Type<kCaptain, 'S'>),
    Key("TZ_FMC_L_T_Button", Type<kCaptain, 'T'>),
    Key("TZ_FMC_L_U_Button", Type<kCaptain, 'U'>),
    Key("TZ_FMC_L_V_Button", Type<kCaptain, 'V'>),
    Key("TZ_FMC_L_W_Button", Type<kCaptain, 'W'>),
    Key("TZ_FMC_L_X_Button", Type<kCaptain, 'X'>),
    Key("TZ_FMC_L_Y_Button", Type<kCaptain, 'Y'>),
    Key("TZ_FMC_L_Z_Button", Type<kCaptain, 'Z'>),
    Key("TZ_FMC_L_0_Button", Type<kCaptain, '0'>),
    Key("TZ_FMC_L_1_Button", Type<kCaptain, '1'>),
    Key("TZ_FMC_L_2_Button", Type<kCaptain, '2'>),
    Key("TZ_FMC_L_3_Button", Type<kCaptain, '3'>),
    Key("TZ_FMC_L_4_Button", Type<kCaptain, '4'>),
    Key("TZ_FMC_L_5_Button", Type<kCaptain, '5'>),
    Key("TZ_FMC_L_6_Button", Type<kCaptain, '6'>),
    Key("TZ_FMC_L_7_Button", Type<kCaptain, '7'>),
    Key("TZ_FMC_L_8_Button", Type<kCaptain, '8'>),
    Key("TZ_FMC_L_9_Button", Type<kCaptain, '9'>),
    Key("TZ_FMC_L_DEC_Button", Type<kCaptain, '.'>),
    Key("TZ_FMC_L_SLASH_Button", On<kCaptain, OnSlash>),
    Key("TZ_FMC_L_NEGPOS_Button", On<kCaptain, OnPlusMinus>),
    Key("TZ_FMC_L_SP_Button", On<kCaptain, OnSpace>),
    Key("TZ_FMC_L_DEL_Button", On<kCaptain, OnDelete>),
    Key("TZ_FMC_L_CLR_Button", On<kCaptain, OnClear>),
    Key("TZ_FMC_L_PRVPG_Button", On<kCaptain, OnPreviousPage>),
    Key("TZ_FMC_L_NXTPG_Button", On<kCaptain, OnNextPage>),
    Key("TZ_FMC_L_EXEC_Button", On<kCaptain, OnExec>),
    Key("TZ_FMC_R_A_Button", Type<kFirstOfficer, 'A'>),
    Key("TZ_FMC_R_B_Button", Type<kFirstOfficer, 'B'>),
    Key("TZ_FMC_R_C_Button", Type<kFirstOfficer, 'C'>),
    Key("TZ_FMC_R_D_Button", Type<kFirstOfficer, 'D'>),
    Key("TZ_FMC_R_E_Button", Type<kFirstOfficer, 'E'>),
    Key("TZ_FMC_R_F_Button", Type<kFirstOfficer, 'F'>),
    Key("TZ_FMC_R_G_Button", Type<kFirstOfficer, 'G'>),
    Key("TZ_FMC_R_H_Button", Type<kFirstOfficer, 'H'>),
    Key("TZ_FMC_R_I_Button", Type<kFirstOfficer, 'I'>),
    Key("TZ_FMC_R_J_Button", Type<kFirstOfficer, 'J'>),
    Key("TZ_FMC_R_K_Button", Type<kFirstOfficer, 'K'>),
    Key("TZ_FMC_R_L_Button", Type<kFirstOfficer, 'L'>),
    Key("TZ_FMC_R_M_Button", Type<kFirstOfficer, 'M'>),
    Key("TZ_FMC_R_N_Button", Type<kFirstOfficer, 'N'>),
    Key("TZ_FMC_R_O_Button", Type<kFirstOfficer, 'O'>),
    Key("TZ_FMC_R_P_Button", Type<kFirstOfficer, 'P'>),
    Key("TZ_FMC_R_Q_Button", Type<kFirstOfficer, 'Q'>),
    Key("TZ_FMC_R_R_Button", Type<kFirstOfficer, 'R'>),
    Key("TZ_FMC_R_S_Button", Type<kFirstOfficer, 'S'>),
    Key("TZ_FMC_R_T_Button", Type<kFirstOfficer, 'T'>),
    Key("TZ_FMC_R_U_Button", Type<kFirstOfficer, 'U'>),
    Key("TZ_FMC_R_V_Button", Type<kFirstOfficer, 'V'>),
    Key("TZ_FMC_R_W_Button", Type<kFirstOfficer, 'W'>),
    Key("TZ_FMC_R_X_Button", Type<kFirstOfficer, 'X'>),
    Key("TZ_FMC_R_Y_Button", Type<kFirstOfficer, 'Y'>),
    Key("TZ_FMC_R_Z_Button", Type<kFirstOfficer, 'Z'>),
    Key("TZ_FMC_R_0_Button", Type<kFirstOfficer, '0'>),
    Key("TZ_FMC_R_1_Button", Type<kFirstOfficer, '1'>),
    Key("TZ_FMC_R_2_Button", Type<kFirstOfficer, '2'>),
    Key("TZ_FMC_R_3_Button", Type<kFirstOfficer, '3'>),
    Key("TZ_FMC_R_4_Button", Type<kFirstOfficer, '4'>),
    Key("TZ_FMC_R_5_Button", Type<kFirstOfficer, '5'>),
    Key("TZ_FMC_R_6_Button", Type<kFirstOfficer, '6'>),
    Key("TZ_FMC_R_7_Button", Type<kFirstOfficer, '7'>),
    Key("TZ_FMC_R_8_Button", Type<kFirstOfficer, '8'>),
    Key("TZ_FMC_R_9_Button", Type<kFirstOfficer, '9'>),
    Key("TZ_FMC_R_DEC_Button", Type<kFirstOfficer, '.'>),
    Key("TZ_FMC_R_SLASH_Button", On<kFirstOfficer, OnSlash>),
    Key("TZ_FMC_R_NEGPOS_Button", On<kFirstOfficer, OnPlusMinus>),
    Key("TZ_FMC_R_SP_Button", On<kFirstOfficer, OnSpace>),
    Key("TZ_FMC_R_DEL_Button", On<kFirstOfficer, OnDelete>),
    Key("TZ_FMC_R_CLR_Button", On<kFirstOfficer, OnClear>),
    Key("TZ_FMC_R_PRVPG_Button", On<kFirstOfficer, OnPreviousPage>),
    Key("TZ_FMC_R_NXTPG_Button", On<kFirstOfficer, OnNextPage>),
    Key("TZ_FMC_R_EXEC_Button", On<kFirstOfficer, OnExec>),
    // an item of the face, by its number
    Momentary("TZ_CAPT_CDU_KEYPRESS", [](int item) { OnCduKeyPress(kCaptain, item); }),
    Momentary("TZ_FO_CDU_KEYPRESS", [](int item) { OnCduKeyPress(kFirstOfficer, item); }),
};
static_assert(std::size(kKeypads) == 92);

}  // namespace

std::span<const Control> KeypadControls() {
    return kKeypads;
}
