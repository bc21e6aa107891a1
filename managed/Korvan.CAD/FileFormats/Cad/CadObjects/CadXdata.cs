using System.Collections.Generic;
using Korvan.CAD.Collections;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>The extended data of one program at an object.</summary>
public class CadXdata
{
    /// <summary>Creates extended data without content.</summary>
    /// <param name="registeredApplicationName">The name that the program has in the table of applications.</param>
    public CadXdata(string registeredApplicationName)
    {
        RegisteredApplicationName = registeredApplicationName;
    }

    /// <summary>Gets or sets the name that the program has in the table of applications. Group code 1001.</summary>
    public string RegisteredApplicationName { get; set; }

    /// <summary>Gets the tags, group codes 1000 to 1071. The list is live.</summary>
    public IList<CadCodeValue> Data { get; } = new CheckedList<CadCodeValue>("data");
}
