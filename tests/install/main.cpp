#include <vertra/vertra.h>

int main() {
    using V = vertra::Vec4D<double>;
    return V(1, 0, 0) * vertra::Matrix3D<double>().Trans(2, 3, 4) == V(3, 3, 4) ? 0 : 1;
}
