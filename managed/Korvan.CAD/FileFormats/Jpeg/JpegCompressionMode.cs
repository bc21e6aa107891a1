using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Jpeg;

/// <summary>Order of the scans of a JPEG.</summary>
[PythonEnum(EnumKind.Integer)]
public enum JpegCompressionMode
{
    /// <summary>Baseline: one scan from the top down.</summary>
    Baseline = 0,

    /// <summary>Progressive: coarse first, then finer; files are somewhat smaller.</summary>
    Progressive = 1,
}
