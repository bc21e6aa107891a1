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

    /// <inheritdoc/>
    internal override void VerifyHonoured()
    {
        const string advice = "a building model is written whole; leave it at its default";
        string? option = this switch
        {
            { Layers.Length: > 0 } => nameof(Layers),
            { UserWatermarkText.Length: > 0 } => nameof(UserWatermarkText),
            { VectorRasterizationOptions: not null } => nameof(VectorRasterizationOptions),
            { ResolutionSettings: not null } => nameof(ResolutionSettings),
            { Timeout: not 0 } => nameof(Timeout),
            _ => null,
        };
        if (option is not null)
        {
            throw NotHonoured(option, advice);
        }
    }
}
