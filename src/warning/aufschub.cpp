#include "warning/aufschub.h"

#include "warning/form3.h"

namespace kes {

namespace später {
std::string Text0(const Form3Fenster& f) {
    return f.Text1[0].Text;
}
std::string Text1(const Form3Fenster& f) {
    return f.Text1[1].Text;
}
std::string Text3(const Form3Fenster& f) {
    return f.Text1[3].Text;
}
std::string Zeile2(const Form3Fenster& f) {
    return f.Zeile2();
}
std::string Label1_1(const Form3Fenster& f) {
    return f.Label1[1].Caption;
}
}  // namespace später

}  // namespace kes
