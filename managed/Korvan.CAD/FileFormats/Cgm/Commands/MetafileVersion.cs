using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The edition of the format that the metafile keeps to.</summary>
public sealed class MetafileVersion : Command
{
    /// <summary>Creates the version 1.</summary>
    public MetafileVersion()
        : base(ClassCode.MetaFileDescriptorElement, (int)MetaFileDescriptorElement.MetafileVersion)
    {
    }

    /// <summary>Creates the element with its parameters.</summary>
    /// <param name="version">The version, 1 to 4.</param>
    public MetafileVersion(int version)
        : this()
    {
        Version = version;
    }

    /// <summary>Gets or sets the version, 1 to 4.</summary>
    public int Version { get; set; } = 1;

    internal override void Exchange(ParameterExchange x) => Version = x.Integer(Version);
}
