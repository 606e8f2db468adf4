// Every arithmetic member against the exact models: all scale-factor
// branches, in-place and constant forms, argument checks. One line per
// member; the harness deduces the types from the signature.
#include <gtest/gtest.h>

#include "arith/harness.h"
#include "kels.h"

namespace kels::test {
namespace {

TEST(ArithMembers, AddInteger) {
  check_vv("Add_16s", Op::add, kelsAdd_16s);
  check_vv("Add_16s32f", Op::add, kelsAdd_16s32f);
  check_vvi("Add_16s32s_I", Op::add, kelsAdd_16s32s_I);
  check_vvi("Add_16s_I", Op::add, kelsAdd_16s_I);
  check_vvi("Add_16s_ISfs", Op::add, kelsAdd_16s_ISfs);
  check_vv("Add_16s_Sfs", Op::add, kelsAdd_16s_Sfs);
  check_vvi("Add_16sc_ISfs", Op::add, kelsAdd_16sc_ISfs);
  check_vv("Add_16sc_Sfs", Op::add, kelsAdd_16sc_Sfs);
  check_vv("Add_16u", Op::add, kelsAdd_16u);
  check_vvi("Add_16u_ISfs", Op::add, kelsAdd_16u_ISfs);
  check_vv("Add_16u_Sfs", Op::add, kelsAdd_16u_Sfs);
  check_vvi("Add_32s_ISfs", Op::add, kelsAdd_32s_ISfs);
  check_vv("Add_32s_Sfs", Op::add, kelsAdd_32s_Sfs);
  check_vvi("Add_32sc_ISfs", Op::add, kelsAdd_32sc_ISfs);
  check_vv("Add_32sc_Sfs", Op::add, kelsAdd_32sc_Sfs);
  check_vv("Add_32u", Op::add, kelsAdd_32u);
  check_vv("Add_8u16u", Op::add, kelsAdd_8u16u);
  check_vvi("Add_8u_ISfs", Op::add, kelsAdd_8u_ISfs);
  check_vv("Add_8u_Sfs", Op::add, kelsAdd_8u_Sfs);
}
TEST(ArithMembers, AddFloat) {
  check_vv("Add_32f", Op::add, kelsAdd_32f);
  check_vvi("Add_32f_I", Op::add, kelsAdd_32f_I);
  check_vv("Add_32fc", Op::add, kelsAdd_32fc);
  check_vvi("Add_32fc_I", Op::add, kelsAdd_32fc_I);
  check_vv("Add_64f", Op::add, kelsAdd_64f);
  check_vvi("Add_64f_I", Op::add, kelsAdd_64f_I);
  check_vv("Add_64fc", Op::add, kelsAdd_64fc);
  check_vvi("Add_64fc_I", Op::add, kelsAdd_64fc_I);
}
TEST(ArithMembers, AddCInteger) {
  check_vci("AddC_16s_I", Op::add, false, kelsAddC_16s_I);
  check_vci("AddC_16s_ISfs", Op::add, false, kelsAddC_16s_ISfs);
  check_vc("AddC_16s_Sfs", Op::add, false, kelsAddC_16s_Sfs);
  check_vci("AddC_16sc_ISfs", Op::add, false, kelsAddC_16sc_ISfs);
  check_vc("AddC_16sc_Sfs", Op::add, false, kelsAddC_16sc_Sfs);
  check_vci("AddC_16u_ISfs", Op::add, false, kelsAddC_16u_ISfs);
  check_vc("AddC_16u_Sfs", Op::add, false, kelsAddC_16u_Sfs);
  check_vci("AddC_32s_ISfs", Op::add, false, kelsAddC_32s_ISfs);
  check_vc("AddC_32s_Sfs", Op::add, false, kelsAddC_32s_Sfs);
  check_vci("AddC_32sc_ISfs", Op::add, false, kelsAddC_32sc_ISfs);
  check_vc("AddC_32sc_Sfs", Op::add, false, kelsAddC_32sc_Sfs);
  check_vci("AddC_8u_ISfs", Op::add, false, kelsAddC_8u_ISfs);
  check_vc("AddC_8u_Sfs", Op::add, false, kelsAddC_8u_Sfs);
}
TEST(ArithMembers, AddCFloat) {
  check_vc("AddC_32f", Op::add, false, kelsAddC_32f);
  check_vci("AddC_32f_I", Op::add, false, kelsAddC_32f_I);
  check_vc("AddC_32fc", Op::add, false, kelsAddC_32fc);
  check_vci("AddC_32fc_I", Op::add, false, kelsAddC_32fc_I);
  check_vc("AddC_64f", Op::add, false, kelsAddC_64f);
  check_vci("AddC_64f_I", Op::add, false, kelsAddC_64f_I);
  check_vc("AddC_64fc", Op::add, false, kelsAddC_64fc);
  check_vci("AddC_64fc_I", Op::add, false, kelsAddC_64fc_I);
}
TEST(ArithMembers, SubInteger) {
  check_vv("Sub_16s", Op::sub, kelsSub_16s);
  check_vv("Sub_16s32f", Op::sub, kelsSub_16s32f);
  check_vvi("Sub_16s_I", Op::sub, kelsSub_16s_I);
  check_vvi("Sub_16s_ISfs", Op::sub, kelsSub_16s_ISfs);
  check_vv("Sub_16s_Sfs", Op::sub, kelsSub_16s_Sfs);
  check_vvi("Sub_16sc_ISfs", Op::sub, kelsSub_16sc_ISfs);
  check_vv("Sub_16sc_Sfs", Op::sub, kelsSub_16sc_Sfs);
  check_vvi("Sub_16u_ISfs", Op::sub, kelsSub_16u_ISfs);
  check_vv("Sub_16u_Sfs", Op::sub, kelsSub_16u_Sfs);
  check_vvi("Sub_32s_ISfs", Op::sub, kelsSub_32s_ISfs);
  check_vv("Sub_32s_Sfs", Op::sub, kelsSub_32s_Sfs);
  check_vvi("Sub_32sc_ISfs", Op::sub, kelsSub_32sc_ISfs);
  check_vv("Sub_32sc_Sfs", Op::sub, kelsSub_32sc_Sfs);
  check_vvi("Sub_8u_ISfs", Op::sub, kelsSub_8u_ISfs);
  check_vv("Sub_8u_Sfs", Op::sub, kelsSub_8u_Sfs);
}
TEST(ArithMembers, SubFloat) {
  check_vv("Sub_32f", Op::sub, kelsSub_32f);
  check_vvi("Sub_32f_I", Op::sub, kelsSub_32f_I);
  check_vv("Sub_32fc", Op::sub, kelsSub_32fc);
  check_vvi("Sub_32fc_I", Op::sub, kelsSub_32fc_I);
  check_vv("Sub_64f", Op::sub, kelsSub_64f);
  check_vvi("Sub_64f_I", Op::sub, kelsSub_64f_I);
  check_vv("Sub_64fc", Op::sub, kelsSub_64fc);
  check_vvi("Sub_64fc_I", Op::sub, kelsSub_64fc_I);
}
TEST(ArithMembers, SubCInteger) {
  check_vci("SubC_16s_I", Op::sub, false, kelsSubC_16s_I);
  check_vci("SubC_16s_ISfs", Op::sub, false, kelsSubC_16s_ISfs);
  check_vc("SubC_16s_Sfs", Op::sub, false, kelsSubC_16s_Sfs);
  check_vci("SubC_16sc_ISfs", Op::sub, false, kelsSubC_16sc_ISfs);
  check_vc("SubC_16sc_Sfs", Op::sub, false, kelsSubC_16sc_Sfs);
  check_vci("SubC_16u_ISfs", Op::sub, false, kelsSubC_16u_ISfs);
  check_vc("SubC_16u_Sfs", Op::sub, false, kelsSubC_16u_Sfs);
  check_vci("SubC_32s_ISfs", Op::sub, false, kelsSubC_32s_ISfs);
  check_vc("SubC_32s_Sfs", Op::sub, false, kelsSubC_32s_Sfs);
  check_vci("SubC_32sc_ISfs", Op::sub, false, kelsSubC_32sc_ISfs);
  check_vc("SubC_32sc_Sfs", Op::sub, false, kelsSubC_32sc_Sfs);
  check_vci("SubC_8u_ISfs", Op::sub, false, kelsSubC_8u_ISfs);
  check_vc("SubC_8u_Sfs", Op::sub, false, kelsSubC_8u_Sfs);
  check_vci("SubCRev_16s_ISfs", Op::sub, true, kelsSubCRev_16s_ISfs);
  check_vc("SubCRev_16s_Sfs", Op::sub, true, kelsSubCRev_16s_Sfs);
  check_vci("SubCRev_16sc_ISfs", Op::sub, true, kelsSubCRev_16sc_ISfs);
  check_vc("SubCRev_16sc_Sfs", Op::sub, true, kelsSubCRev_16sc_Sfs);
  check_vci("SubCRev_16u_ISfs", Op::sub, true, kelsSubCRev_16u_ISfs);
  check_vc("SubCRev_16u_Sfs", Op::sub, true, kelsSubCRev_16u_Sfs);
  check_vci("SubCRev_32s_ISfs", Op::sub, true, kelsSubCRev_32s_ISfs);
  check_vc("SubCRev_32s_Sfs", Op::sub, true, kelsSubCRev_32s_Sfs);
  check_vci("SubCRev_32sc_ISfs", Op::sub, true, kelsSubCRev_32sc_ISfs);
  check_vc("SubCRev_32sc_Sfs", Op::sub, true, kelsSubCRev_32sc_Sfs);
  check_vci("SubCRev_8u_ISfs", Op::sub, true, kelsSubCRev_8u_ISfs);
  check_vc("SubCRev_8u_Sfs", Op::sub, true, kelsSubCRev_8u_Sfs);
}
TEST(ArithMembers, SubCFloat) {
  check_vc("SubC_32f", Op::sub, false, kelsSubC_32f);
  check_vci("SubC_32f_I", Op::sub, false, kelsSubC_32f_I);
  check_vc("SubC_32fc", Op::sub, false, kelsSubC_32fc);
  check_vci("SubC_32fc_I", Op::sub, false, kelsSubC_32fc_I);
  check_vc("SubC_64f", Op::sub, false, kelsSubC_64f);
  check_vci("SubC_64f_I", Op::sub, false, kelsSubC_64f_I);
  check_vc("SubC_64fc", Op::sub, false, kelsSubC_64fc);
  check_vci("SubC_64fc_I", Op::sub, false, kelsSubC_64fc_I);
  check_vc("SubCRev_32f", Op::sub, true, kelsSubCRev_32f);
  check_vci("SubCRev_32f_I", Op::sub, true, kelsSubCRev_32f_I);
  check_vc("SubCRev_32fc", Op::sub, true, kelsSubCRev_32fc);
  check_vci("SubCRev_32fc_I", Op::sub, true, kelsSubCRev_32fc_I);
  check_vc("SubCRev_64f", Op::sub, true, kelsSubCRev_64f);
  check_vci("SubCRev_64f_I", Op::sub, true, kelsSubCRev_64f_I);
  check_vc("SubCRev_64fc", Op::sub, true, kelsSubCRev_64fc);
  check_vci("SubCRev_64fc_I", Op::sub, true, kelsSubCRev_64fc_I);
}
TEST(ArithMembers, MulInteger) {
  check_vv("Mul_16s", Op::mul, kelsMul_16s);
  check_vv("Mul_16s32f", Op::mul, kelsMul_16s32f);
  check_vv("Mul_16s32s_Sfs", Op::mul, kelsMul_16s32s_Sfs);
  check_vvi("Mul_16s_I", Op::mul, kelsMul_16s_I);
  check_vvi("Mul_16s_ISfs", Op::mul, kelsMul_16s_ISfs);
  check_vv("Mul_16s_Sfs", Op::mul, kelsMul_16s_Sfs);
  check_vvi("Mul_16sc_ISfs", Op::mul, kelsMul_16sc_ISfs);
  check_vv("Mul_16sc_Sfs", Op::mul, kelsMul_16sc_Sfs);
  check_vv("Mul_16u16s_Sfs", Op::mul, kelsMul_16u16s_Sfs);
  check_vvi("Mul_16u_ISfs", Op::mul, kelsMul_16u_ISfs);
  check_vv("Mul_16u_Sfs", Op::mul, kelsMul_16u_Sfs);
  check_vvi("Mul_32s32sc_ISfs", Op::mul, kelsMul_32s32sc_ISfs);
  check_vv("Mul_32s32sc_Sfs", Op::mul, kelsMul_32s32sc_Sfs);
  check_vvi("Mul_32s_ISfs", Op::mul, kelsMul_32s_ISfs);
  check_vv("Mul_32s_Sfs", Op::mul, kelsMul_32s_Sfs);
  check_vvi("Mul_32sc_ISfs", Op::mul, kelsMul_32sc_ISfs);
  check_vv("Mul_32sc_Sfs", Op::mul, kelsMul_32sc_Sfs);
  check_vv("Mul_8u16u", Op::mul, kelsMul_8u16u);
  check_vvi("Mul_8u_ISfs", Op::mul, kelsMul_8u_ISfs);
  check_vv("Mul_8u_Sfs", Op::mul, kelsMul_8u_Sfs);
  check_vv("Mul_Low_32s_Sfs", Op::mul, kelsMul_Low_32s_Sfs);
}
TEST(ArithMembers, MulFloat) {
  check_vv("Mul_32f", Op::mul, kelsMul_32f);
  check_vv("Mul_32f32fc", Op::mul, kelsMul_32f32fc);
  check_vvi("Mul_32f32fc_I", Op::mul, kelsMul_32f32fc_I);
  check_vvi("Mul_32f_I", Op::mul, kelsMul_32f_I);
  check_vv("Mul_32fc", Op::mul, kelsMul_32fc);
  check_vvi("Mul_32fc_I", Op::mul, kelsMul_32fc_I);
  check_vv("Mul_64f", Op::mul, kelsMul_64f);
  check_vvi("Mul_64f_I", Op::mul, kelsMul_64f_I);
  check_vv("Mul_64fc", Op::mul, kelsMul_64fc);
  check_vvi("Mul_64fc_I", Op::mul, kelsMul_64fc_I);
}
TEST(ArithMembers, MulCInteger) {
  check_vci("MulC_16s_I", Op::mul, false, kelsMulC_16s_I);
  check_vci("MulC_16s_ISfs", Op::mul, false, kelsMulC_16s_ISfs);
  check_vc("MulC_16s_Sfs", Op::mul, false, kelsMulC_16s_Sfs);
  check_vci("MulC_16sc_ISfs", Op::mul, false, kelsMulC_16sc_ISfs);
  check_vc("MulC_16sc_Sfs", Op::mul, false, kelsMulC_16sc_Sfs);
  check_vci("MulC_16u_ISfs", Op::mul, false, kelsMulC_16u_ISfs);
  check_vc("MulC_16u_Sfs", Op::mul, false, kelsMulC_16u_Sfs);
  check_vc("MulC_32f16s_Sfs", Op::mul, false, kelsMulC_32f16s_Sfs);
  check_vci("MulC_32s_ISfs", Op::mul, false, kelsMulC_32s_ISfs);
  check_vc("MulC_32s_Sfs", Op::mul, false, kelsMulC_32s_Sfs);
  check_vci("MulC_32sc_ISfs", Op::mul, false, kelsMulC_32sc_ISfs);
  check_vc("MulC_32sc_Sfs", Op::mul, false, kelsMulC_32sc_Sfs);
  check_vci("MulC_8u_ISfs", Op::mul, false, kelsMulC_8u_ISfs);
  check_vc("MulC_8u_Sfs", Op::mul, false, kelsMulC_8u_Sfs);
  check_vc("MulC_Low_32f16s", Op::mul, false, kelsMulC_Low_32f16s);
}
TEST(ArithMembers, MulCFloat) {
  check_vc("MulC_32f", Op::mul, false, kelsMulC_32f);
  check_vci("MulC_32f_I", Op::mul, false, kelsMulC_32f_I);
  check_vc("MulC_32fc", Op::mul, false, kelsMulC_32fc);
  check_vci("MulC_32fc_I", Op::mul, false, kelsMulC_32fc_I);
  check_vc("MulC_64f", Op::mul, false, kelsMulC_64f);
  check_vci("MulC_64f_I", Op::mul, false, kelsMulC_64f_I);
  check_vc("MulC_64fc", Op::mul, false, kelsMulC_64fc);
  check_vci("MulC_64fc_I", Op::mul, false, kelsMulC_64fc_I);
}
TEST(ArithMembers, DivInteger) {
  check_vvi("Div_16s_ISfs", Op::div, kelsDiv_16s_ISfs);
  check_vv("Div_16s_Sfs", Op::div, kelsDiv_16s_Sfs);
  check_vvi("Div_16sc_ISfs", Op::div, kelsDiv_16sc_ISfs);
  check_vv("Div_16sc_Sfs", Op::div, kelsDiv_16sc_Sfs);
  check_vvi("Div_16u_ISfs", Op::div, kelsDiv_16u_ISfs);
  check_vv("Div_16u_Sfs", Op::div, kelsDiv_16u_Sfs);
  check_vv("Div_32s16s_Sfs", Op::div, kelsDiv_32s16s_Sfs);
  check_vvi("Div_32s_ISfs", Op::div, kelsDiv_32s_ISfs);
  check_vv("Div_32s_Sfs", Op::div, kelsDiv_32s_Sfs);
  check_vvi("Div_8u_ISfs", Op::div, kelsDiv_8u_ISfs);
  check_vv("Div_8u_Sfs", Op::div, kelsDiv_8u_Sfs);
}
TEST(ArithMembers, DivFloat) {
  check_vv("Div_32f", Op::div, kelsDiv_32f);
  check_vvi("Div_32f_I", Op::div, kelsDiv_32f_I);
  check_vv("Div_32fc", Op::div, kelsDiv_32fc);
  check_vvi("Div_32fc_I", Op::div, kelsDiv_32fc_I);
  check_vv("Div_64f", Op::div, kelsDiv_64f);
  check_vvi("Div_64f_I", Op::div, kelsDiv_64f_I);
  check_vv("Div_64fc", Op::div, kelsDiv_64fc);
  check_vvi("Div_64fc_I", Op::div, kelsDiv_64fc_I);
}
TEST(ArithMembers, DivCInteger) {
  check_vci("DivC_16s_ISfs", Op::div, false, kelsDivC_16s_ISfs);
  check_vc("DivC_16s_Sfs", Op::div, false, kelsDivC_16s_Sfs);
  check_vci("DivC_16sc_ISfs", Op::div, false, kelsDivC_16sc_ISfs);
  check_vc("DivC_16sc_Sfs", Op::div, false, kelsDivC_16sc_Sfs);
  check_vci("DivC_16u_ISfs", Op::div, false, kelsDivC_16u_ISfs);
  check_vc("DivC_16u_Sfs", Op::div, false, kelsDivC_16u_Sfs);
  check_vci("DivC_8u_ISfs", Op::div, false, kelsDivC_8u_ISfs);
  check_vc("DivC_8u_Sfs", Op::div, false, kelsDivC_8u_Sfs);
}
TEST(ArithMembers, DivCFloat) {
  check_vc("DivC_32f", Op::div, false, kelsDivC_32f);
  check_vci("DivC_32f_I", Op::div, false, kelsDivC_32f_I);
  check_vc("DivC_32fc", Op::div, false, kelsDivC_32fc);
  check_vci("DivC_32fc_I", Op::div, false, kelsDivC_32fc_I);
  check_vc("DivC_64f", Op::div, false, kelsDivC_64f);
  check_vci("DivC_64f_I", Op::div, false, kelsDivC_64f_I);
  check_vc("DivC_64fc", Op::div, false, kelsDivC_64fc);
  check_vci("DivC_64fc_I", Op::div, false, kelsDivC_64fc_I);
  check_vc("DivCRev_32f", Op::div, true, kelsDivCRev_32f);
  check_vci("DivCRev_32f_I", Op::div, true, kelsDivCRev_32f_I);
}

}  // namespace
}  // namespace kels::test
