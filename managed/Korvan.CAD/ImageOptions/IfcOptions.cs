namespace Korvan.CAD.ImageOptions;

/// <summary>Options for a building model in its own schema.</summary>
public class IfcOptions : ImageOptionsBase
{
    /// <summary>Creates options with default values.</summary>
    public IfcOptions()
        : base(FileFormat.IFC4)
    {
    }

    /// <summary>Gets or sets whether the model is written as a ZIP archive (.ifczip). Off by default.</summary>
    public bool IsPacked { get; set; }
}
