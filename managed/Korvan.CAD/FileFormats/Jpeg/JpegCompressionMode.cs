using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Jpeg;

/// <summary>The order in which a JPEG stores its picture.</summary>
[PythonEnum(EnumKind.Integer)]
public enum JpegCompressionMode
{
    /// <summary>From the top down, in one pass.</summary>
    Baseline = 0,

    /// <summary>Coarse first, then finer; somewhat smaller.</summary>
    Progressive = 1,
}
