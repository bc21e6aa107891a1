using System.Collections.Generic;
using Korvan.CAD.Collections;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A group of tags that a program attached to an object, between two group codes 102.</summary>
public class CadApplicationCodes
{
    /// <summary>Creates a group without content.</summary>
    /// <param name="applicationName">The name of the group, as in ACAD_REACTORS.</param>
    public CadApplicationCodes(string applicationName)
    {
        ApplicationName = applicationName;
    }

    /// <summary>Gets or sets the name of the group, without the brace.</summary>
    public string ApplicationName { get; set; }

    /// <summary>Gets the tags of the group. The list is live.</summary>
    public IList<CadCodeValue> Codes { get; } = new CheckedList<CadCodeValue>("codes");
}
