namespace Korvan.CAD.ImageOptions;

/// <summary>Options for the solids of a drawing as STEP product data.</summary>
public class StpOptions : ImageOptionsBase
{
    /// <summary>Creates options with default values.</summary>
    public StpOptions()
        : base(FileFormat.Stp)
    {
    }

    /// <summary>Gets or sets the author, for the file header.</summary>
    public string Author { get; set; } = "";

    /// <summary>Gets or sets the organisation, for the file header.</summary>
    public string Organization { get; set; } = "";
}
