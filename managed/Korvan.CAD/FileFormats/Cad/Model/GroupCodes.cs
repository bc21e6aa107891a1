using Korvan.CAD.FileFormats.Cad.CadConsts;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>The types of values by the ranges of their group codes.</summary>
internal static class GroupCodes
{
    internal static CadGroupCodeTypes TypeOf(int code) => code switch
    {
        5 or 105 or 1005 or (>= 320 and < 370) or (>= 390 and < 400) or 480 or 481 => CadGroupCodeTypes.Handle,
        1004 or (>= 310 and < 320) => CadGroupCodeTypes.Binary,
        999 => CadGroupCodeTypes.Comment,
        (>= 0 and < 10) or 100 or 101 or 102 or (>= 300 and < 310) or (>= 410 and < 420) or (>= 430 and < 440)
            or (>= 470 and < 480) or (>= 1000 and < 1010) => CadGroupCodeTypes.Text,
        (>= 10 and < 40) or (>= 110 and < 140) or (>= 210 and < 240) or (>= 1010 and < 1040)
            => CadGroupCodeTypes.Point,
        (>= 40 and < 60) or (>= 140 and < 150) or (>= 460 and < 470) or (>= 1040 and < 1060)
            => CadGroupCodeTypes.Number,
        (>= 60 and < 80) or (>= 170 and < 180) or (>= 270 and < 290) or (>= 370 and < 390) or (>= 400 and < 410)
            or (>= 1060 and < 1071) => CadGroupCodeTypes.Short,
        (>= 90 and < 100) or (>= 420 and < 430) or (>= 440 and < 460) or 1071 => CadGroupCodeTypes.Integer,
        >= 160 and < 170 => CadGroupCodeTypes.Long,
        >= 290 and < 300 => CadGroupCodeTypes.Boolean,
        _ => CadGroupCodeTypes.None,
    };
}
