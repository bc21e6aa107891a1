using System;

namespace Korvan.CAD.CadExceptions.Compressors;

/// <summary>Run-length coded data is damaged.</summary>
public class RleCompressorException : CompressorException
{
    /// <summary>Creates the exception with a message.</summary>
    /// <param name="message">What failed, where, and what would be right.</param>
    public RleCompressorException(string message)
        : base(message)
    {
    }

    /// <summary>Creates the exception with a message and the failure behind it.</summary>
    /// <param name="message">What failed, where, and what would be right.</param>
    /// <param name="innerException">The failure that led here.</param>
    public RleCompressorException(string message, Exception? innerException)
        : base(message, innerException)
    {
    }
}
