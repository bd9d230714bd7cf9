#include <vertra/vertra.h>

#include <iostream>

int main() {
    vertra::Matrix3D<double> m;
    m.Trans(2, 3, 4);
    vertra::Vec4D<double> const moved = vertra::Vec4D<double>(1, 0, 0) * m;
    std::cout << moved.x << ' ' << moved.y << ' ' << moved.z << '\n';
    return moved == vertra::Vec4D<double>(3, 3, 4) ? 0 : 1;
}
