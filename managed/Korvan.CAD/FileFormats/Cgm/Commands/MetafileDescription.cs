using System;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Free words about the metafile; profiles put their names here.</summary>
public sealed class MetafileDescription : Command
{
    /// <summary>Creates an empty description.</summary>
    public MetafileDescription()
        : base(ClassCode.MetaFileDescriptorElement, (int)MetaFileDescriptorElement.MetafileDescription)
    {
    }

    /// <summary>Creates the element with its parameters.</summary>
    /// <param name="description">The words.</param>
    public MetafileDescription(string description)
        : this()
    {
        Verify.NotNull(description);
        Description = description;
    }

    /// <summary>Gets or sets the words.</summary>
    public string Description { get; set; } = "";

    internal override void Exchange(ParameterExchange x) => Description = x.String(Description);
}
