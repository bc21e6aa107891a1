using System;
using System.Collections.Generic;
using Korvan.CAD.Collections;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>The extended data of an object.</summary>
public class CadXdataContainer
{
    /// <summary>Creates a container without content.</summary>
    public CadXdataContainer()
    {
    }

    /// <summary>Gets the extended data of each program. The list is live.</summary>
    public IList<CadXdata> XdataEntities { get; } = new CheckedList<CadXdata>("xdata_entities");

    /// <summary>Finds the extended data of a program.</summary>
    /// <param name="registeredApplicationName">The name of the program; upper and lower case are the same.</param>
    /// <returns>The data, or nothing.</returns>
    public CadXdata? Find(string registeredApplicationName)
    {
        foreach (CadXdata xdata in XdataEntities)
        {
            if (string.Equals(xdata.RegisteredApplicationName, registeredApplicationName,
                    StringComparison.OrdinalIgnoreCase))
            {
                return xdata;
            }
        }

        return null;
    }
}
