using System;

namespace Korvan.CAD.CadExceptions;

/// <summary>Data that have to fit together do not: counts, sizes or kinds differ.</summary>
public class DataMissmatchError : FrameworkException
{
    /// <summary>Creates the exception with a message.</summary>
    /// <param name="message">What failed, where, and what would be right.</param>
    public DataMissmatchError(string message)
        : base(message)
    {
    }

    /// <summary>Creates the exception with a message and the failure behind it.</summary>
    /// <param name="message">What failed, where, and what would be right.</param>
    /// <param name="innerException">The failure that led here.</param>
    public DataMissmatchError(string message, Exception? innerException)
        : base(message, innerException)
    {
    }
}
