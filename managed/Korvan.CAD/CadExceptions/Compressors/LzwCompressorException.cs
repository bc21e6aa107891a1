using System;

namespace Korvan.CAD.CadExceptions.Compressors;

/// <summary>Data compressed by the method of Lempel, Ziv and Welch is damaged.</summary>
public class LzwCompressorException : CompressorException
{
    /// <summary>Creates the exception with a message.</summary>
    /// <param name="message">What failed, where, and what would be right.</param>
    public LzwCompressorException(string message)
        : base(message)
    {
    }

    /// <summary>Creates the exception with a message and the failure behind it.</summary>
    /// <param name="message">What failed, where, and what would be right.</param>
    /// <param name="innerException">The failure that led here.</param>
    public LzwCompressorException(string message, Exception? innerException)
        : base(message, innerException)
    {
    }
}
