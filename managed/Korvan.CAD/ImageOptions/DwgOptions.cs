using Korvan.CAD.FileFormats.Cad.CadConsts;

namespace Korvan.CAD.ImageOptions;

/// <summary>Says how a drawing is written in its binary form.</summary>
public class DwgOptions : ImageOptionsBase
{
    /// <summary>Creates options with their defaults.</summary>
    public DwgOptions()
        : base(FileFormat.CadR2018)
    {
    }

    /// <summary>Gets or sets the release that is written; nothing for the one that the drawing has.</summary>
    public CadAcadVersion? Version { get; set; }
}
