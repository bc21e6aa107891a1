namespace Korvan.CAD.ImageOptions;

/// <summary>Writes a building model in its own edition.</summary>
public class IfcOptions : ImageOptionsBase
{
    /// <summary>Creates options with their defaults.</summary>
    public IfcOptions()
        : base(FileFormat.IFC4)
    {
    }

    /// <summary>Gets or sets whether the model is packed into a ZIP file, as the ending .ifczip says.</summary>
    public bool IsPacked { get; set; }
}
