namespace Korvan.CAD.ImageOptions;

/// <summary>Says how the bodies of a drawing are written as product data.</summary>
public class StpOptions : ImageOptionsBase
{
    /// <summary>Creates options with their defaults.</summary>
    public StpOptions()
        : base(FileFormat.Stp)
    {
    }

    /// <summary>Gets or sets who made the data, for the head of the file.</summary>
    public string Author { get; set; } = "";

    /// <summary>Gets or sets the organisation, for the head of the file.</summary>
    public string Organization { get; set; } = "";
}
