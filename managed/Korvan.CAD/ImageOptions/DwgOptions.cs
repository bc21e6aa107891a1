using Korvan.CAD.FileFormats.Cad.CadConsts;

namespace Korvan.CAD.ImageOptions;

/// <summary>Options for a drawing in its binary format.</summary>
public class DwgOptions : ImageOptionsBase
{
    /// <summary>Creates options with default values.</summary>
    public DwgOptions()
        : base(FileFormat.CadR2018)
    {
    }

    /// <summary>Gets or sets the release that is written: <see cref="CadAcadVersion.AC1015"/>,
    /// <see cref="CadAcadVersion.AC1018"/>, <see cref="CadAcadVersion.AC1024"/>, <see cref="CadAcadVersion.AC1027"/> or
    /// <see cref="CadAcadVersion.AC1032"/>; <see langword="null"/> for that of the drawing, or the next one of
    /// these.</summary>
    public CadAcadVersion? Version { get; set; }
}
