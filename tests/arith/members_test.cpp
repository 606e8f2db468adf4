// Every arithmetic member against the exact models: all scale-factor
// branches, in-place and constant forms, argument checks. The harness
// deduces the form and types from the signature, the operation and the
// operand order from the name.
#include <gtest/gtest.h>

#include "arith/harness.h"
#include "kels.h"

namespace kels::test {
namespace {

#define M(name) check_member(#name, kels##name);

TEST(ArithMembers, Add) {
  M(Add_16s) M(Add_16s32f) M(Add_16s32s_I) M(Add_16s_I) M(Add_16s_ISfs) M(Add_16s_Sfs) M(Add_16sc_ISfs)
  M(Add_16sc_Sfs) M(Add_16u) M(Add_16u_ISfs) M(Add_16u_Sfs) M(Add_32s_ISfs) M(Add_32s_Sfs) M(Add_32sc_ISfs)
  M(Add_32sc_Sfs) M(Add_32u) M(Add_8u16u) M(Add_8u_ISfs) M(Add_8u_Sfs) M(Add_32f) M(Add_32f_I) M(Add_32fc)
  M(Add_32fc_I) M(Add_64f) M(Add_64f_I) M(Add_64fc) M(Add_64fc_I)
}
TEST(ArithMembers, AddC) {
  M(AddC_16s_I) M(AddC_16s_ISfs) M(AddC_16s_Sfs) M(AddC_16sc_ISfs) M(AddC_16sc_Sfs) M(AddC_16u_ISfs) M(AddC_16u_Sfs)
  M(AddC_32s_ISfs) M(AddC_32s_Sfs) M(AddC_32sc_ISfs) M(AddC_32sc_Sfs) M(AddC_8u_ISfs) M(AddC_8u_Sfs) M(AddC_32f)
  M(AddC_32f_I) M(AddC_32fc) M(AddC_32fc_I) M(AddC_64f) M(AddC_64f_I) M(AddC_64fc) M(AddC_64fc_I)
}
TEST(ArithMembers, Sub) {
  M(Sub_16s) M(Sub_16s32f) M(Sub_16s_I) M(Sub_16s_ISfs) M(Sub_16s_Sfs) M(Sub_16sc_ISfs) M(Sub_16sc_Sfs)
  M(Sub_16u_ISfs) M(Sub_16u_Sfs) M(Sub_32s_ISfs) M(Sub_32s_Sfs) M(Sub_32sc_ISfs) M(Sub_32sc_Sfs) M(Sub_8u_ISfs)
  M(Sub_8u_Sfs) M(Sub_32f) M(Sub_32f_I) M(Sub_32fc) M(Sub_32fc_I) M(Sub_64f) M(Sub_64f_I) M(Sub_64fc) M(Sub_64fc_I)
}
TEST(ArithMembers, SubC) {
  M(SubC_16s_I) M(SubC_16s_ISfs) M(SubC_16s_Sfs) M(SubC_16sc_ISfs) M(SubC_16sc_Sfs) M(SubC_16u_ISfs) M(SubC_16u_Sfs)
  M(SubC_32s_ISfs) M(SubC_32s_Sfs) M(SubC_32sc_ISfs) M(SubC_32sc_Sfs) M(SubC_8u_ISfs) M(SubC_8u_Sfs)
  M(SubCRev_16s_ISfs) M(SubCRev_16s_Sfs) M(SubCRev_16sc_ISfs) M(SubCRev_16sc_Sfs) M(SubCRev_16u_ISfs)
  M(SubCRev_16u_Sfs) M(SubCRev_32s_ISfs) M(SubCRev_32s_Sfs) M(SubCRev_32sc_ISfs) M(SubCRev_32sc_Sfs)
  M(SubCRev_8u_ISfs) M(SubCRev_8u_Sfs) M(SubC_32f) M(SubC_32f_I) M(SubC_32fc) M(SubC_32fc_I) M(SubC_64f) M(SubC_64f_I)
  M(SubC_64fc) M(SubC_64fc_I) M(SubCRev_32f) M(SubCRev_32f_I) M(SubCRev_32fc) M(SubCRev_32fc_I) M(SubCRev_64f)
  M(SubCRev_64f_I) M(SubCRev_64fc) M(SubCRev_64fc_I)
}
TEST(ArithMembers, Mul) {
  M(Mul_16s) M(Mul_16s32f) M(Mul_16s32s_Sfs) M(Mul_16s_I) M(Mul_16s_ISfs) M(Mul_16s_Sfs) M(Mul_16sc_ISfs)
  M(Mul_16sc_Sfs) M(Mul_16u16s_Sfs) M(Mul_16u_ISfs) M(Mul_16u_Sfs) M(Mul_32s32sc_ISfs) M(Mul_32s32sc_Sfs)
  M(Mul_32s_ISfs) M(Mul_32s_Sfs) M(Mul_32sc_ISfs) M(Mul_32sc_Sfs) M(Mul_8u16u) M(Mul_8u_ISfs) M(Mul_8u_Sfs)
  M(Mul_Low_32s_Sfs) M(Mul_32f) M(Mul_32f32fc) M(Mul_32f32fc_I) M(Mul_32f_I) M(Mul_32fc) M(Mul_32fc_I) M(Mul_64f)
  M(Mul_64f_I) M(Mul_64fc) M(Mul_64fc_I)
}
TEST(ArithMembers, MulC) {
  M(MulC_16s_I) M(MulC_16s_ISfs) M(MulC_16s_Sfs) M(MulC_16sc_ISfs) M(MulC_16sc_Sfs) M(MulC_16u_ISfs) M(MulC_16u_Sfs)
  M(MulC_32f16s_Sfs) M(MulC_32s_ISfs) M(MulC_32s_Sfs) M(MulC_32sc_ISfs) M(MulC_32sc_Sfs) M(MulC_8u_ISfs)
  M(MulC_8u_Sfs) M(MulC_Low_32f16s) M(MulC_32f) M(MulC_32f_I) M(MulC_32fc) M(MulC_32fc_I) M(MulC_64f) M(MulC_64f_I)
  M(MulC_64fc) M(MulC_64fc_I)
}
TEST(ArithMembers, Div) {
  M(Div_16s_ISfs) M(Div_16s_Sfs) M(Div_16sc_ISfs) M(Div_16sc_Sfs) M(Div_16u_ISfs) M(Div_16u_Sfs) M(Div_32s16s_Sfs)
  M(Div_32s_ISfs) M(Div_32s_Sfs) M(Div_8u_ISfs) M(Div_8u_Sfs) M(Div_32f) M(Div_32f_I) M(Div_32fc) M(Div_32fc_I)
  M(Div_64f) M(Div_64f_I) M(Div_64fc) M(Div_64fc_I)
}
TEST(ArithMembers, DivC) {
  M(DivC_16s_ISfs) M(DivC_16s_Sfs) M(DivC_16sc_ISfs) M(DivC_16sc_Sfs) M(DivC_16u_ISfs) M(DivC_16u_Sfs) M(DivC_8u_ISfs)
  M(DivC_8u_Sfs) M(DivC_32f) M(DivC_32f_I) M(DivC_32fc) M(DivC_32fc_I) M(DivC_64f) M(DivC_64f_I) M(DivC_64fc)
  M(DivC_64fc_I) M(DivCRev_32f) M(DivCRev_32f_I)
}

#undef M

}  // namespace
}  // namespace kels::test
