! Writes PLOT3D files the way flow solvers do, so that the loader is held against files that none of
! our own code has written. Usage: write_plot3d FOLDER
!
! Every file is written in 32 and 64 bits (in the names: 32, 64). Binary files come in both byte
! orders (little, big), as records and as a stream without markers. The width of the record markers
! is an option of the compiler, so this program is compiled once for each.
!
! Values name their place: see `place` below. The tests repeat that formula.
program write_plot3d
  use, intrinsic :: iso_fortran_env, only: int32, real32, real64
  implicit none

  integer, parameter :: grid_count = 3
  integer(int32), parameter :: ni(grid_count) = [2, 5, 3]
  integer(int32), parameter :: nj(grid_count) = [3, 2, 7]
  integer(int32), parameter :: nk(grid_count) = [5, 3, 2]

  ! How numbers are written.
  integer, parameter :: binary = 0       ! bytes, in records or a stream
  integer, parameter :: list_directed = 1
  integer, parameter :: fixed = 2        ! an explicit format, with D exponents in 64 bits
  integer, parameter :: repeated = 3     ! equal neighbours as count*value

  integer, parameter :: grid_kind = 0, solution_kind = 20, function_kind = 40

  character(len=1024) :: folder

  call get_command_argument(1, folder)
  call write_all_binary(32)
  call write_all_binary(64)
  call write_all_text(32)
  call write_all_text(64)

contains

  subroutine write_all_binary(bits)
    integer, intent(in) :: bits
    call write_family('records', 'little', bits)
    call write_family('records', 'big', bits)
    call write_family('stream', 'little', bits)
    call write_family('stream', 'big', bits)
  end subroutine write_all_binary

  subroutine write_family(access_name, order, bits)
    character(len=*), intent(in) :: access_name, order
    integer, intent(in) :: bits
    character(len=64) :: stem
    integer :: u
    write (stem, '(a,"_",a,"_",i0)') access_name, order, bits
    u = opened(access_name, order, trim(stem)//'.x')
    call put_multi_grid(u, binary, bits)
    u = opened(access_name, order, trim(stem)//'.q')
    call put_solution(u, binary, bits)
    u = opened(access_name, order, trim(stem)//'.f')
    call put_function(u, binary, bits)
    u = opened(access_name, order, trim(stem)//'_single.x')
    call put_single_grid(u, binary, bits)
    u = opened(access_name, order, trim(stem)//'_planes.x')
    call put_planes(u, bits)
  end subroutine write_family

  subroutine write_all_text(bits)
    integer, intent(in) :: bits
    call write_text_family('list', list_directed, bits)
    call write_text_family('fixed', fixed, bits)
    call write_text_family('repeated', repeated, bits)
  end subroutine write_all_text

  subroutine write_text_family(name, form, bits)
    character(len=*), intent(in) :: name
    integer, intent(in) :: form, bits
    character(len=64) :: stem
    integer :: u
    write (stem, '(a,"_",i0)') name, bits
    u = opened_text(trim(stem)//'.x')
    call put_multi_grid(u, form, bits)
    u = opened_text(trim(stem)//'.q')
    call put_solution(u, form, bits)
    u = opened_text(trim(stem)//'.f')
    call put_function(u, form, bits)
    u = opened_text(trim(stem)//'_single.x')
    call put_single_grid(u, form, bits)
  end subroutine write_text_family

  integer function opened(access_name, order, name) result(u)
    character(len=*), intent(in) :: access_name, order, name
    character(len=16) :: access_word
    access_word = merge('sequential', 'stream    ', access_name == 'records')
    open (newunit=u, file=trim(folder)//'/'//name, form='unformatted', access=trim(access_word), &
          convert=order//'_endian', status='replace', action='write')
  end function opened

  integer function opened_text(name) result(u)
    character(len=*), intent(in) :: name
    open (newunit=u, file=trim(folder)//'/'//name, form='formatted', status='replace', &
          action='write')
  end function opened_text

  ! ---- Files -------------------------------------------------------------------------------------

  subroutine put_multi_grid(u, form, bits)
    integer, intent(in) :: u, form, bits
    integer :: g
    call put_integers(u, form, [grid_count])
    call put_integers(u, form, [(ni(g), nj(g), nk(g), g=1, grid_count)])
    do g = 1, grid_count
      call put_data(u, form, bits, field_values(grid_kind, g, 3, 1, int(nk(g))), iblank_values(g))
    end do
    close (u)
  end subroutine put_multi_grid

  subroutine put_single_grid(u, form, bits)
    integer, intent(in) :: u, form, bits
    call put_integers(u, form, [ni(1), nj(1), nk(1)])
    call put_data(u, form, bits, field_values(grid_kind, 1, 3, 1, int(nk(1))))
    close (u)
  end subroutine put_single_grid

  subroutine put_planes(u, bits)
    integer, intent(in) :: u, bits
    integer :: g, k
    call put_integers(u, binary, [grid_count])
    call put_integers(u, binary, [(ni(g), nj(g), nk(g), g=1, grid_count)])
    do g = 1, grid_count
      do k = 1, nk(g)
        call put_data(u, binary, bits, field_values(grid_kind, g, 3, k, k))
      end do
    end do
    close (u)
  end subroutine put_planes

  subroutine put_solution(u, form, bits)
    integer, intent(in) :: u, form, bits
    integer :: g
    call put_integers(u, form, [grid_count])
    call put_integers(u, form, [(ni(g), nj(g), nk(g), g=1, grid_count)])
    do g = 1, grid_count
      call put_scalars(u, form, bits, [0.5d0 + g, -2.25d0, 1.5d6, 0.125d0*g])
      call put_data(u, form, bits, field_values(solution_kind, g, 5, 1, int(nk(g))))
    end do
    close (u)
  end subroutine put_solution

  subroutine put_function(u, form, bits)
    integer, intent(in) :: u, form, bits
    integer :: g
    call put_integers(u, form, [grid_count])
    call put_integers(u, form, [(ni(g), nj(g), nk(g), 2, g=1, grid_count)])
    do g = 1, grid_count
      call put_data(u, form, bits, field_values(function_kind, g, 2, 1, int(nk(g))))
    end do
    close (u)
  end subroutine put_function

  ! ---- What the files hold -----------------------------------------------------------------------

  ! The fifth variable is the same everywhere, so that it makes one long repeat.
  pure real(real64) function place(kind_of_file, g, v, i, j, k)
    integer, intent(in) :: kind_of_file, g, v, i, j, k
    place = kind_of_file + i + 100*j + 10000*k + 100000*v + 1000000*g + 0.25d0 + 2d0**(-30)
    if (v == 5) place = 2.5d0
  end function place

  ! All variables of a grid, of the planes first_k to last_k, I fastest.
  pure function field_values(kind_of_file, g, variables, first_k, last_k) result(x)
    integer, intent(in) :: kind_of_file, g, variables, first_k, last_k
    real(real64), allocatable :: x(:)
    integer :: i, j, k, v
    x = [((((place(kind_of_file, g, v, i, j, k), i=1, int(ni(g))), j=1, int(nj(g))), &
           k=first_k, last_k), v=1, variables)]
  end function field_values

  ! The last plane of a grid is switched off.
  pure function iblank_values(g) result(b)
    integer, intent(in) :: g
    integer(int32), allocatable :: b(:)
    integer :: i, j, k
    b = [(((merge(0, 1, k == nk(g)), i=1, int(ni(g))), j=1, int(nj(g))), k=1, int(nk(g)))]
  end function iblank_values

  ! ---- Numbers -----------------------------------------------------------------------------------

  subroutine put_integers(u, form, values)
    integer, intent(in) :: u, form
    integer(int32), intent(in) :: values(:)
    if (form == binary) then
      write (u) values
    else if (form == list_directed) then
      write (u, *) values
    else
      write (u, '(12(1x,i0))') values
    end if
  end subroutine put_integers

  subroutine put_scalars(u, form, bits, values)
    integer, intent(in) :: u, form, bits
    real(real64), intent(in) :: values(:)
    if (form == repeated) then
      write (u, '(4(1x,g0))') values
    else
      call put_data(u, form, bits, values)
    end if
  end subroutine put_scalars

  ! One record, if the file has records; otherwise as many lines as it takes.
  subroutine put_data(u, form, bits, x, iblank)
    integer, intent(in) :: u, form, bits
    real(real64), intent(in) :: x(:)
    integer(int32), intent(in), optional :: iblank(:)
    if (form == binary) then
      call put_record(u, bits, x, iblank)
      return
    end if
    call put_reals(u, form, bits, x)
    if (.not. present(iblank)) return
    if (form == repeated) then
      call put_repeated_integers(u, iblank)
    else
      write (u, *) iblank
    end if
  end subroutine put_data

  subroutine put_record(u, bits, x, iblank)
    integer, intent(in) :: u, bits
    real(real64), intent(in) :: x(:)
    integer(int32), intent(in), optional :: iblank(:)
    if (bits == 32 .and. present(iblank)) then
      write (u) real(x, real32), iblank
    else if (bits == 32) then
      write (u) real(x, real32)
    else if (present(iblank)) then
      write (u) x, iblank
    else
      write (u) x
    end if
  end subroutine put_record

  subroutine put_reals(u, form, bits, x)
    integer, intent(in) :: u, form, bits
    real(real64), intent(in) :: x(:)
    if (form == repeated) then
      call put_repeated_reals(u, bits, x)
    else if (form == fixed .and. bits == 32) then
      write (u, '(7es17.8)') real(x, real32)
    else if (form == fixed) then
      write (u, '(3d26.17)') x
    else if (bits == 32) then
      write (u, *) real(x, real32)
    else
      write (u, *) x
    end if
  end subroutine put_reals

  subroutine put_repeated_reals(u, bits, x)
    integer, intent(in) :: u, bits
    real(real64), intent(in) :: x(:)
    integer :: first, last
    first = 1
    do while (first <= size(x))
      last = first
      do while (last < size(x))
        if (x(last + 1) /= x(first)) exit
        last = last + 1
      end do
      if (bits == 32) then
        write (u, '(1x,i0,"*",g0)') last - first + 1, real(x(first), real32)
      else
        write (u, '(1x,i0,"*",g0)') last - first + 1, x(first)
      end if
      first = last + 1
    end do
  end subroutine put_repeated_reals

  subroutine put_repeated_integers(u, values)
    integer, intent(in) :: u
    integer(int32), intent(in) :: values(:)
    integer :: first, last
    first = 1
    do while (first <= size(values))
      last = first
      do while (last < size(values))
        if (values(last + 1) /= values(first)) exit
        last = last + 1
      end do
      write (u, '(1x,i0,"*",i0)') last - first + 1, values(first)
      first = last + 1
    end do
  end subroutine put_repeated_integers

end program write_plot3d
