#include "tests/support/NoiseSet.h"

#include "base/Picture.h"
#include "base/RandomSource.h"
#include "tests/support/TemporaryFolder.h"

namespace quillbrand {

void WriteNoiseSet(const std::filesystem::path& folder, const std::string& name, int side) {
    std::filesystem::create_directories(folder);
    std::string description = "[SET]\nNAME=" + name + "\n[PERLIN]\n";
    RandomSource chance(11);
    for (int k = 1; k <= 5; ++k) {
        const std::string number = "0" + std::to_string(k);
        description.append(number).append("=").append(name).append(number).append(".png\n");
        Picture picture(side, side);
        for (int y = 0; y < side; ++y)
            for (int x = 0; x < side; ++x)
                picture.Row(y)[x] = 0xff000000u | static_cast<QRgb>(chance.Uniform() * 65536);
        picture.Save(folder / (name + number + ".png"));
    }
    WriteText(folder / (name + ".INI"), description);
}

}  // namespace quillbrand
