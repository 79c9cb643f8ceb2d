#pragma once
// One write for a change of several values of the store: a list that shifts, a record of three
// numbers, the options of a window. Killed in the middle, the program leaves the store as it
// was before the change or as it is after it, never between.

namespace corvina {

// For the store itself or for the table's view of it: anything with abreLote and fechaLote.
template <class Destino> class LoteDeAjustes {
  public:
    explicit LoteDeAjustes(Destino& d) : d_(d) { d_.abreLote(); }
    ~LoteDeAjustes() { d_.fechaLote(); }
    LoteDeAjustes(const LoteDeAjustes&) = delete;
    LoteDeAjustes& operator=(const LoteDeAjustes&) = delete;

  private:
    Destino& d_;
};

} // namespace corvina
