namespace Korvan.CAD.ImageOptions;

/// <summary>Writes a drawing interchange file.</summary>
public class DxfOptions : ImageOptionsBase
{
    /// <summary>Creates options with their defaults.</summary>
    public DxfOptions()
        : base(FileFormat.DxfCadR2013)
    {
    }

    /// <summary>Gets or sets the release that is written. By default the one that the drawing has; drawings of
    /// release 2000 and later can be written as any of these releases.</summary>
    public DxfOutputVersion Version { get; set; } = DxfOutputVersion.Original;

    /// <inheritdoc/>
    internal override void VerifyHonoured()
    {
        const string advice = "a drawing interchange file holds the drawing itself; leave it at its default";
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
