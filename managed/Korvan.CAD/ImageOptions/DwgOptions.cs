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

    /// <summary>Gets or sets the release that is written; <see langword="null"/> for the one that the drawing
    /// has.</summary>
    public CadAcadVersion? Version { get; set; }
}
